// Writes property value expressions.
#include "bexa/foundation/kanji_bytes.h"
#include "bexa/props/prop_value.h"

#include <string_view>

namespace {

// Writes into the caller's text.
class ExpressionWriter {
public:
    ExpressionWriter(YString& out, unsigned escapes, bool newlines)
        : out_(out),
          escapes_(escapes),
          newlines_(newlines) {}

    void write(const BexPropValue::Group& group) {
        if (group.items.count() == 0) {
            out_.concat(group.name.view());
        } else {
            writeInParentheses(group);
        }
        endLine();
    }

private:
    void writeInParentheses(const BexPropValue::Group& group) {
        out_ << '(';
        if (group.name.length() != 0) {
            out_ << ' ';
            out_.concat(group.name.view());
            if (!newlines_) out_ << ' ';
        }
        endLine();
        YSetIterator walk(group.items);
        while (const void* item = walk.doNext()) {
            write(*static_cast<const BexPropValue::Item*>(item));
        }
        out_ << ')';
    }

    void write(const BexPropValue::Item& item) {
        out_.concat("( ");
        out_.concat(item.key.view());
        out_ << ' ';
        writeEscaped(item.value.view());
        out_.concat(" )");
        endLine();
    }

    // A lead byte takes the byte behind it along, whatever that is. Kept on purpose: with none behind it, it is
    // dropped.
    void writeEscaped(std::string_view value) {
        for (std::size_t at = 0; at < value.size(); ++at) {
            if (!bexa::detail::isLeadByte(static_cast<unsigned char>(value[at]))) {
                writeEscaped(value[at]);
            } else if (at + 1 < value.size()) {
                out_.concat(value.substr(at, 2));
                ++at;
            }
        }
    }

    void writeEscaped(char c) {
        constexpr std::string_view escaped = " \"()\\";
        if (escaped.find(c) != std::string_view::npos) {
            for (unsigned i = 0; i < escapes_; ++i) out_ << '\\';
        }
        out_ << c;
    }

    void endLine() {
        if (newlines_) out_ << '\n';
    }

    YString& out_;
    unsigned escapes_;
    bool newlines_;
};

} // namespace

void BexPropValue::dump(YString& out, unsigned escapes, unsigned long newlines) const {
    ExpressionWriter writer(out, escapes, newlines != 0);
    YSetIterator walk(groups_);
    while (const void* group = walk.doNext()) {
        writer.write(*static_cast<const Group*>(group));
    }
}
