#include "tests/tools/program.h"

#include "tests/support/child.h"
#include "tests/support/files.h"

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <system_error>

namespace bexa::test {
namespace {

// A descriptor that is closed with its object; -1 stands for none.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    int number() const { return number_; }

private:
    int number_;
};

Descriptor openForWriting(const std::string& path) {
    const int number = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (number < 0) throw std::system_error(errno, std::generic_category(), path);
    return Descriptor(number);
}

std::vector<char*> pointersTo(const std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
    pointers.push_back(nullptr);
    return pointers;
}

void setDescriptor(int target, int source) {
    if (source >= 0)
        ::dup2(source, target);
    else
        ::close(target);
}

} // namespace

Program::Program()
    : environment_{{"LANG", "C.UTF-8"},
                   {"HOME", directory_.makeDirectory("home")},
                   {"YDSROOT", "system"},
                   {"AMPLIFIER_LIBRARY", "/opt/amplifier/library"}} {
    std::filesystem::copy(BEXA_SAMPLE, directory_.file("sample"), std::filesystem::copy_options::recursive);
}

int Program::become(const Arguments& arguments, const Variables& variables, int out, int err) const {
    std::vector<std::string> command{"bexa"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    std::vector<std::string> environment;
    for (const auto& [name, value] : variables) environment.push_back(name + '=' + value);
    if (::chdir(file("").c_str()) != 0) return Child::threw;
    setDescriptor(STDOUT_FILENO, out);
    setDescriptor(STDERR_FILENO, err);
    ::execve(BEXA_PROGRAM, pointersTo(command).data(), pointersTo(environment).data());
    return Child::threw;
}

int Program::start(const Arguments& arguments, int out, int err) const {
    Child child;
    if (asNobody_) child.asNobody();
    return child.run([&] { return become(arguments, environment_, out, err); });
}

std::vector<int> Program::runTogether(const std::string& variable, const std::vector<std::string>& values,
                                      const Arguments& arguments) const {
    const Descriptor silent = openForWriting("/dev/null");
    std::vector<Child> children(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        Variables variables = environment_;
        variables[variable] = values[i];
        children[i].start([&] { return become(arguments, variables, silent.number(), silent.number()); });
    }
    std::vector<int> codes;
    for (Child& child : children) codes.push_back(child.wait());
    return codes;
}

Outcome Program::run(const Arguments& arguments) const {
    const std::string out = directory_.file("out"), err = directory_.file("err");
    const int code = start(arguments, openForWriting(out).number(), openForWriting(err).number());
    return {code, contentOf(out), contentOf(err)};
}

std::string Program::good(const Arguments& arguments) const {
    const Outcome result = run(arguments);
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    return result.out;
}

Json Program::json(Arguments arguments) const {
    arguments.emplace_back("--json");
    return Json::parse(run(arguments).out);
}

int Program::runInto(const std::string& path, const Arguments& arguments) const {
    return start(arguments, openForWriting(path).number(), openForWriting(directory_.file("err")).number());
}

int Program::runIntoClosedPipe(const Arguments& arguments) const {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) throw std::system_error(errno, std::generic_category(), "pipe");
    const Descriptor writer(ends[1]);
    ::close(ends[0]);
    return start(arguments, writer.number(), openForWriting(directory_.file("err")).number());
}

int Program::runWithoutOutput(const Arguments& arguments) const {
    return start(arguments, -1, openForWriting(directory_.file("err")).number());
}

bool Program::becomeNobody() {
    asNobody_ = Child().asNobody().run([] { return ::access(BEXA_PROGRAM, X_OK) == 0 ? 0 : 1; }) == 0;
    return asNobody_;
}

std::string expected(const std::string& name) {
    return contentOf(testData("tools/" + name));
}

} // namespace bexa::test
