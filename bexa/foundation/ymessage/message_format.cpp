#include "bexa/foundation/ymessage/message_format.h"

#include "bexa/foundation/text_cursor.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cwchar>
#include <iterator>
#include <type_traits>

using bexa::detail::isDigit;

namespace {

// A `va_list` of its own, which can be handed on by reference.
class Arguments {
public:
    explicit Arguments(va_list list) { va_copy(list_, list); }
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;
    ~Arguments() { va_end(list_); }

    template <class Value>
    Value take() {
        return va_arg(list_, Value);
    }

private:
    va_list list_;
};

struct ConversionRule;

// conversion = "%" { flag } [ width ] [ "." [ precision ] ] [ "l" ] letter
struct Conversion {
    std::string_view whole;
    std::string flags; // those that the rule has a use for
    int width = 0;
    int precision = -1; // below 0 for none
    bool isLong = false;
    const ConversionRule* rule = nullptr; // null if it isn't one of those that are carried out
};

using Print = void (*)(std::string& out, const Conversion& conversion, Arguments& arguments);

struct ConversionRule {
    char letter;
    std::string_view flags; // those that mean something to it
    bool hasPrecision;
    Print print;
    Print printLong;
};

template <class Value>
void print(std::string& out, const Conversion& conversion, Arguments& arguments);

constexpr ConversionRule rules[] = {
    // clang-format off
    // letter  flags    precision  print               printLong
    {'s',      "-",     true,      print<const char*>, print<const wchar_t*>},
    {'d',      "-+ 0",  true,      print<int>,         print<long>},
    {'u',      "-0",    true,      print<unsigned>,    print<unsigned long>},
    {'x',      "-#0",   true,      print<unsigned>,    print<unsigned long>},
    {'c',      "-",     false,     print<int>,         print<std::wint_t>},
    {'f',      "-+ #0", true,      print<double>,      print<double>},
    // clang-format on
};

// The conversion for the standard library, with width and precision as arguments; a negative precision is none there.
std::string systemFormat(const Conversion& conversion) {
    std::string format = "%" + conversion.flags + "*";
    if (conversion.rule->hasPrecision) format += ".*";
    if (conversion.isLong) format += 'l';
    return format + conversion.rule->letter;
}

template <class Value>
int printInto(char* buffer, std::size_t size, const Conversion& conversion, Value value) {
    const std::string format = systemFormat(conversion);
    if (!conversion.rule->hasPrecision)
        return std::snprintf(buffer, size, format.c_str(), conversion.width, value);
    return std::snprintf(buffer, size, format.c_str(), conversion.width, conversion.precision, value);
}

template <class Value>
void print(std::string& out, const Conversion& conversion, Arguments& arguments) {
    auto value = arguments.take<Value>();
    if constexpr (std::is_pointer_v<Value>) {
        static constexpr std::remove_pointer_t<Value> nothing[1] = {};
        if (!value) value = nothing;
    }
    const int size = printInto(nullptr, 0, conversion, value);
    if (size <= 0) return;
    const std::size_t before = out.size();
    // The terminator needs a place while it is written.
    out.resize(before + static_cast<std::size_t>(size) + 1);
    printInto(out.data() + before, static_cast<std::size_t>(size) + 1, conversion, value);
    out.pop_back();
}

constexpr bool isFlag(char c) {
    return std::string_view("-+ #0").find(c) != std::string_view::npos;
}

int takeNumber(std::string_view& text) {
    constexpr int most = 1023;
    int number = 0;
    for (; !text.empty() && isDigit(text.front()); text.remove_prefix(1)) {
        number = std::min(10 * number + (text.front() - '0'), most);
    }
    return number;
}

bool take(std::string_view& text, char c) {
    if (!text.starts_with(c)) return false;
    text.remove_prefix(1);
    return true;
}

// Takes a conversion off the front of the text, which begins with a percent sign. At the end of the text it may be
// unfinished.
Conversion takeConversion(std::string_view& text) {
    std::string_view rest = text.substr(1);
    Conversion result;
    const auto flagsEnd = std::ranges::find_if_not(rest, isFlag);
    const std::string_view flags = rest.substr(0, static_cast<std::size_t>(flagsEnd - rest.begin()));
    rest.remove_prefix(flags.size());
    result.width = takeNumber(rest);
    if (take(rest, '.')) result.precision = takeNumber(rest);
    result.isLong = take(rest, 'l');
    const auto rule =
        rest.empty() ? std::end(rules) : std::ranges::find(rules, rest.front(), &ConversionRule::letter);
    if (!rest.empty()) rest.remove_prefix(1);
    result.whole = text.substr(0, text.size() - rest.size());
    text = rest;
    if (rule == std::end(rules)) return result;
    result.rule = rule;
    std::ranges::copy_if(flags, std::back_inserter(result.flags),
                         [rule](char flag) { return rule->flags.find(flag) != std::string_view::npos; });
    return result;
}

} // namespace

std::string bexa::detail::formatMessage(std::string_view format, va_list arguments) {
    Arguments list(arguments);
    std::string out;
    while (true) {
        const std::size_t percent = std::min(format.find('%'), format.size());
        out += format.substr(0, percent);
        format.remove_prefix(percent);
        if (format.empty()) return out;
        const Conversion conversion = takeConversion(format);
        if (conversion.rule) {
            (conversion.isLong ? conversion.rule->printLong : conversion.rule->print)(out, conversion, list);
        } else {
            out += conversion.whole == "%%" ? "%" : conversion.whole;
        }
    }
}
