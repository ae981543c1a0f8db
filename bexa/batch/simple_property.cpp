#include "bexa/batch/simple_property.h"

#include "bexa/foundation/rsc_value_readers.h"
#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/ycore/file_access.h"
#include "bexa/foundation/ycore/text_compare.h"

using namespace bexa::detail;

namespace {

// The words of a row, null for one that is no list.
const YioRscList* listAt(const YioRscTable& table, unsigned row) {
    YioRscValue* cell = table.value(row, 0);
    return cell ? cell->list() : nullptr;
}

} // namespace

unsigned long SLProperty::read(const char* path, const char* key) {
    table_.reset();
    if (!Yaccess(path, 4)) return 0;
    std::shared_ptr<YioRscValue> value(YioRscFile(path).value(key));
    if (!value || value->kind() != YioRscValue::KindTable) return 0;
    table_ = std::move(value);
    return 1;
}

const char* SLProperty::getStr(const char* word, unsigned keyColumn, unsigned valueColumn) const {
    if (!table_ || keyColumn == 0 || valueColumn == 0) return nullptr;
    const YioRscTable& table = *table_->table();
    for (unsigned row = 0; row < table.rowCount(); ++row) {
        const YioRscList* words = listAt(table, row);
        if (!words || words->count() < keyColumn) continue;
        if (viewOf(words->value(keyColumn - 1)->string()) != viewOf(word)) continue;
        const YioRscValue* value = words->value(valueColumn - 1);
        return value ? value->string() : nullptr;
    }
    return nullptr;
}

int SLProperty::getInt(const char* word, unsigned keyColumn, unsigned valueColumn) const {
    return numberOf(viewOf(getStr(word, keyColumn, valueColumn)));
}

unsigned long SLProperty::getBool(const char* word, unsigned keyColumn, unsigned valueColumn) const {
    return Ystricmp(getStr(word, keyColumn, valueColumn), "ON") == 0;
}
