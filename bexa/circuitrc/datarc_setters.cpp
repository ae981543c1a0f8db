// Settings by key, and the setters of the modes.

#include "bexa/circuitrc/datarc.h"
#include "bexa/circuitrc/datarc_fields.h"
#include "bexa/circuitrc/datarc_keys.h"

using bexa::detail::DatarcSetting;
using bexa::detail::fieldOf;
using bexa::detail::findDatarcSettingIgnoringCase;
using bexa::detail::storeNumber;

namespace {

void takeFormat(const char* text, YString& format, unsigned long& presence) {
    if (!text || !*text) return;
    format = text;
    presence = 1;
}

} // namespace

unsigned long BexDatarc::set(const char* key, long value, short, short) {
    const DatarcSetting* setting = findDatarcSettingIgnoringCase(key);
    return setting && setting->set.takes(value, *fields_) && storeNumber(*fields_, *setting, value);
}

unsigned long BexDatarc::set(const char* key, double value, short, short) {
    const DatarcSetting* setting = findDatarcSettingIgnoringCase(key);
    double* field = setting ? fieldOf<double>(*fields_, *setting) : nullptr;
    if (!field || !setting->set.takes(value)) return 0;
    *field = value;
    return 1;
}

unsigned long BexDatarc::set(const char* key, const char* value, short, short) {
    const DatarcSetting* setting = findDatarcSettingIgnoringCase(key);
    YString* field = setting && setting->set.hasSetter() ? fieldOf<YString>(*fields_, *setting) : nullptr;
    // Kept on purpose: callers are told success for a key that isn't known, or that this overload doesn't
    // set.
    if (field) *field = value;
    return 1;
}

unsigned long BexDatarc::set(const char* key, char value, short, short) {
    const DatarcSetting* setting = findDatarcSettingIgnoringCase(key);
    char* field = setting && setting->set.hasSetter() ? fieldOf<char>(*fields_, *setting) : nullptr;
    if (!field) return 0;
    *field = value;
    return 1;
}

unsigned long BexDatarc::variationMark(unsigned long flag, const char* mark, const char* propertyName) {
    fields_->vmarkFlag = flag != 0;
    fields_->vmarkStr = mark;
    fields_->vmarkPname = propertyName;
    return 1;
}

unsigned long BexDatarc::busNSimpleDispMode(const int& flag, char separator, char crown) {
    fields_->busNSimpleDispFlag = flag;
    fields_->busNSimpleDispSepChar = separator;
    fields_->busNSimpleDispCrownChar = crown;
    fields_->busNSimpleDispSet = 1;
    return 1;
}

unsigned long BexDatarc::useBusAlias(unsigned long value) {
    // Kept on purpose: any value is taken, though only 0 and 1 have a word. Any other is written without one.
    fields_->useBusAliasFlag = value;
    fields_->useBusAliasSet = 1;
    return 1;
}

unsigned long BexDatarc::createInstNetLabelMode(unsigned int value) {
    fields_->createNetLabelFromDefRef = value;
    fields_->createNetLabelSet = 1;
    return 1;
}

unsigned long BexDatarc::sheetNetErrorLevel(unsigned int value) {
    fields_->sheetNetErrorLevel = value;
    fields_->sheetNetErrorLevelSet = 1;
    return 1;
}

unsigned long BexDatarc::overwritePortMode(unsigned int value) {
    if (value > 3) return 0;
    fields_->overwritePortMode = value;
    fields_->overwritePortModeSet = 1;
    return 1;
}

unsigned long BexDatarc::simpleArrayMode(unsigned long value) {
    // Kept on purpose: nothing but 1 has an effect, so a caller can't switch the mode off.
    if (value == 1) fields_->simpleArray = fields_->simpleArraySet = 1;
    return 1;
}

unsigned long BexDatarc::dateFormat(const char* format) {
    takeFormat(format, fields_->dateFormat, fields_->dateFormatSet);
    return 1;
}

unsigned long BexDatarc::timeFormat(const char* format) {
    takeFormat(format, fields_->timeFormat, fields_->timeFormatSet);
    return 1;
}
