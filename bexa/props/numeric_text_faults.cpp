// Which fault a numeric text has.
#include "bexa/foundation/text_cursor.h"
#include "bexa/props/numeric_factors.h"
#include "bexa/props/numeric_text.h"

using namespace bexa::detail;

namespace {

using Fault = BexCheckValue::Fault;

constexpr bool isSign(char c) {
    return c == '+' || c == '-';
}
constexpr bool isExponentMark(char c) {
    return c == 'e' || c == 'E';
}

// Walks a text up to its first fault. A function takes what it judges off the front.
class FaultFinder {
public:
    explicit FaultFinder(const char* text) : cursor_(viewOf(text)) {}

    Fault ofFloat() {
        Fault fault = Fault::NoFault;
        while (fault == Fault::NoFault && !cursor_.atEnd()) {
            fault = ofPart();
        }
        return fault;
    }

    Fault ofInteger() {
        Fault fault = Fault::NoFault;
        while (fault == Fault::NoFault && !cursor_.atEnd()) {
            const char c = cursor_.peek();
            if (isLetter(c)) return ofFactor();
            fault = isSign(c) ? ofSign() : ofDigit();
        }
        return fault;
    }

private:
    Fault ofPart() {
        const char c = cursor_.peek();
        if (isExponentMark(c)) return ofExponentMark();
        if (isLetter(c)) return exponentSeen_ ? Fault::BadExponent : ofFactor();
        if (isSign(c)) return ofSign();
        return c == '.' ? ofPoint() : ofDigit();
    }

    Fault ofDigit() { return isDigit(cursor_.take()) ? Fault::NoFault : Fault::BadCharacter; }

    Fault ofExponentMark() {
        if (exponentSeen_) return Fault::SecondExponent;
        if (cursor_.position() == 0) return Fault::ExponentFirst;
        exponentSeen_ = true;
        cursor_.skip(1);
        // Kept on purpose: what stands behind the sign isn't looked at, so `1e+` has no fault.
        if (cursor_.take('+') || cursor_.take('-')) return Fault::NoFault;
        return isDigit(cursor_.peek()) ? Fault::NoFault : Fault::BadExponent;
    }

    Fault ofSign() {
        if (signSeen_) return Fault::SecondSign;
        if (cursor_.position() != 0) return Fault::SignNotFirst;
        signSeen_ = true;
        cursor_.skip(1);
        if (cursor_.atEnd()) return Fault::SignAlone;
        return isDigit(cursor_.take()) ? Fault::NoFault : Fault::SignWithoutDigit;
    }

    Fault ofPoint() {
        if (exponentSeen_) return Fault::PointInExponent;
        if (pointSeen_) return Fault::SecondPoint;
        pointSeen_ = true;
        const bool first = cursor_.position() == 0;
        cursor_.skip(1);
        if (first && cursor_.atEnd()) return Fault::PointAlone;
        return isDigit(cursor_.take()) ? Fault::NoFault : Fault::PointWithoutDigit;
    }

    // A factor ends the text, good or bad.
    Fault ofFactor() {
        const std::string_view rest = cursor_.takeRest();
        if (!factorAt(rest.substr(0, 1))) return Fault::BadCharacter;
        if (rest.size() == cursor_.position()) return Fault::FactorFirst;
        const NumericFactor* factor = factorAt(rest);
        if (!factor) return Fault::BadCharacter;
        return rest.size() > factor->word.size() ? Fault::TextAfterFactor : Fault::NoFault;
    }

    TextCursor cursor_;
    bool signSeen_ = false;
    bool pointSeen_ = false;
    bool exponentSeen_ = false;
};

} // namespace

int BexCheckValue::isFloat(const char* text) {
    return FaultFinder(text).ofFloat();
}

int BexCheckValue::isInteger(const char* text) {
    return FaultFinder(text).ofInteger();
}

int BexCheckValue::isString(const char*) {
    return NoFault;
}

unsigned long BexCheckValue::isNull(const char* text) {
    return viewOf(text).empty();
}
