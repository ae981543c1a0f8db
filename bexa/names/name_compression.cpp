#include "bexa/names/name_compression.h"

#include "bexa/names/array_text.h"
#include "bexa/names/bundle_parts.h"
#include "bexa/names/delimiters.h"

#include <charconv>
#include <cstdlib>
#include <utility>

using bexa::detail::ArrayText;
using bexa::detail::Delimiters;

namespace {

// Numbers of one distance from each other; `step` is 0 as long as there is only the first.
struct Run {
    int first = -1;
    int last = -1;
    int step = 0;
};

// Writes signals one after the other as arrays, as few as their order allows.
class ArrayWriter {
public:
    // Roots are kept as views.
    explicit ArrayWriter(const Delimiters& delimiters) : delimiters_(delimiters) {}

    // A signal without a bit has the number -1.
    void add(std::string_view root, int number) {
        if (!isFirst_ && number >= 0 && run_.last >= 0 && root == root_) {
            extendRun(number);
            return;
        }
        if (!isFirst_) {
            makeArray();
            text_ << delimiters_.bitEnd;
        }
        isFirst_ = false;
        root_ = root;
        text_.concat(root);
        run_ = {number, number};
    }

    YString finish() {
        makeArray();
        return std::move(text_);
    }

private:
    void extendRun(int number) {
        const int step = number - run_.last;
        if (run_.step == 0 && step == 0) {
            makeRange();
        } else if (run_.step == 0 || run_.step == step) {
            run_ = {run_.first, number, step};
        } else {
            makeRange();
            run_ = {number, number};
        }
    }

    // Closes the array whose root is already written.
    void makeArray() {
        if (run_.first >= 0) makeRange();
        if (isOpen_) text_ << delimiters_.busEnd;
        isOpen_ = false;
    }

    void makeRange() {
        char piece[48];
        char* end = write(piece, isOpen_ ? delimiters_.bitEnd : delimiters_.busStart, run_.first);
        if (run_.last != run_.first) end = write(end, delimiters_.rangeEnd, run_.last);
        if (std::abs(run_.step) > 1) end = write(end, delimiters_.rangeStep, std::abs(run_.step));
        text_.concat(std::string_view(piece, static_cast<std::size_t>(end - piece)));
        isOpen_ = true;
    }

    // Room for a delimiter and any int is needed at `place`; returns the end of both.
    static char* write(char* place, char delimiter, int number) {
        constexpr int longest = 11;
        *place = delimiter;
        return std::to_chars(place + 1, place + 1 + longest, number).ptr;
    }

    const Delimiters& delimiters_;
    YString text_;
    std::string_view root_; // of the current array
    Run run_;
    bool isFirst_ = true;
    bool isOpen_ = false; // the brackets of the current array are
};

} // namespace

BexChkPressName::BexChkPressName(const char* name, const BexDatarc& rc) {
    take(name, Delimiters::of(rc));
}

BexChkPressName::BexChkPressName(const char* name, char busStart, char busEnd, char rangeEnd, char bitEnd,
                                 char rangeStep) {
    take(name, {busStart, busEnd, rangeEnd, bitEnd, rangeStep});
}

void BexChkPressName::take(const char* name, const Delimiters& delimiters) {
    if (!name || !*name) return;
    name_ = name;
    busStart_ = delimiters.busStart;
    busEnd_ = delimiters.busEnd;
    rangeEnd_ = delimiters.rangeEnd;
    bitEnd_ = delimiters.bitEnd;
    rangeStep_ = delimiters.rangeStep ? delimiters.rangeStep : delimiters.rangeEnd;
}

unsigned long BexChkPressName::isValid() const noexcept {
    return busStart_ && busEnd_ && rangeEnd_ && bitEnd_ && name_.length() != 0;
}

const char* BexChkPressName::newName() {
    if (!isValid()) return name_;
    const Delimiters delimiters{busStart_, busEnd_, rangeEnd_, bitEnd_, rangeStep_};
    ArrayWriter writer(delimiters);
    bexa::detail::BundleResult result;
    bexa::detail::BundleParts parts(name_.view(), delimiters);
    while (!parts.atEnd()) {
        const std::string_view part = parts.next();
        int count = 0;
        const auto errType =
            ArrayText(part, delimiters).forEachSignal([&](std::string_view root, int number) {
                writer.add(root, number);
                ++count;
            });
        if (!result.take(part, errType, count)) return name_;
    }
    if (!parts.isBalanced() || result.errType() != BexNetNameOk || result.signalCount() < 2) return name_;
    newName_ = writer.finish();
    return newName_;
}
