// Settings by key.

#include "bexa/envrc/envrc.h"
#include "bexa/envrc/envrc_fields.h"
#include "bexa/envrc/envrc_keys.h"
#include "bexa/foundation/text_cursor.h"

#include <cctype>
#include <initializer_list>

using bexa::detail::EnvrcForm;
using bexa::detail::EnvrcSetRule;
using bexa::detail::EnvrcSetting;
using bexa::detail::fieldOf;
using bexa::detail::markGiven;
using bexa::detail::storeNumber;

namespace {

// The setting with this key, if it has a setter and stands in one of these forms.
const EnvrcSetting* settable(const char* key, std::initializer_list<EnvrcForm::Kind> forms) {
    const EnvrcSetting* setting = bexa::detail::findEnvrcSetting(bexa::detail::viewOf(key));
    if (!setting || setting->set.kind == EnvrcSetRule::NoSetter) return nullptr;
    for (const EnvrcForm::Kind form : forms) {
        if (setting->form.kind == form) return setting;
    }
    return nullptr;
}

} // namespace

unsigned long BexEnvrc::set(const char* key, long value) {
    const EnvrcSetting* setting = settable(key, {EnvrcForm::Number, EnvrcForm::WordOrNumber});
    if (!setting || !setting->set.takes(static_cast<double>(value))) return 0;
    storeNumber(*data_, *setting, value);
    markGiven(*data_, *setting);
    return 1;
}

unsigned long BexEnvrc::set(const char* key, double value) {
    const EnvrcSetting* setting = settable(key, {EnvrcForm::Real});
    if (!setting || !setting->set.takes(value)) return 0;
    fieldOf<double>(*data_, *setting) = value;
    return 1;
}

unsigned long BexEnvrc::set(const char* key, const char* value) {
    const EnvrcSetting* setting = settable(key, {EnvrcForm::Text, EnvrcForm::Word});
    if (!setting) return 0;
    if (setting->form.kind == EnvrcForm::Text) return fieldOf<YString>(*data_, *setting).assign(value);
    const int number = setting->form.valueOf(value);
    if (number < 0) return 0;
    storeNumber(*data_, *setting, number);
    markGiven(*data_, *setting);
    return 1;
}

unsigned long BexEnvrc::set(const char* key, char value) {
    const EnvrcSetting* setting = settable(key, {EnvrcForm::Character});
    const int letter = static_cast<unsigned char>(value);
    if (!setting || !std::isalnum(letter)) return 0;
    fieldOf<char>(*data_, *setting) = static_cast<char>(std::toupper(letter));
    return 1;
}
