// The life of a circuit resource, and its plain readers.

#include "bexa/circuitrc/datarc.h"

#include "bexa/circuitrc/datarc_fields.h"
#include "bexa/foundation/rsc_lifecycle.h"
#include "bexa/foundation/unit_scale.h"

#include <cstring>
#include <utility>

using bexa::detail::EmptyPath;
using bexa::detail::RscAccess;

namespace {

double unitFactor(const bexa::detail::DatarcFields& fields) {
    return fields.precisionTable.at(static_cast<int>(fields.precisionNumber)).factor;
}

} // namespace

BexDatarc* BexDatarc::open(const char* fileName, BexOpenMode mode, const char* currentDir) {
    return RscAccess::open<BexDatarc, EmptyPath::Refused>(fileName, mode, fileName, mode, currentDir);
}

unsigned long BexDatarc::close(BexDatarc* object, BexCloseMode mode) {
    return RscAccess::close(object, mode, [](const BexDatarc& open) { return open.save(); });
}

unsigned long BexDatarc::save() const {
    return bexa::detail::saveByMode(openMode(),
                                    [this](BexSaveMode mode) { return saveAs(fileName(), mode); });
}

unsigned long BexDatarc::saveAs(const char* fileName, BexSaveMode mode) const {
    return bexa::detail::maySave(fileName, mode) && save(fileName);
}

long BexDatarc::encode(double value) const {
    return bexa::detail::wholeUnits(value, unitFactor(*fields_));
}

double BexDatarc::decode(long value) const {
    return bexa::detail::lengthOf(value, unitFactor(*fields_));
}

long BexDatarc::nodeSize() const {
    return encode(fields_->nodeSize);
}

long BexDatarc::cornerRadius() const {
    return encode(fields_->cornerRadius);
}

long BexDatarc::dataTrap() const {
    return encode(fields_->dataTrap);
}

unsigned long BexDatarc::variationMark(unsigned long& flag, char* mark, char* propertyName) const {
    YString texts[2];
    if (!mark || !propertyName || !variationMark(flag, &texts[0], &texts[1])) return 0;
    std::strcpy(mark, texts[0]);
    std::strcpy(propertyName, texts[1]);
    return 1;
}

unsigned long BexDatarc::variationMark(unsigned long& flag, char* mark, char* propertyName) {
    return std::as_const(*this).variationMark(flag, mark, propertyName);
}

unsigned long BexDatarc::variationMark(unsigned long& flag, YString* mark, YString* propertyName) const {
    if (!mark || !propertyName) return 0;
    if (fields_->vmarkFlag == 1 && (fields_->vmarkStr == "" || fields_->vmarkPname == "")) return 0;
    flag = fields_->vmarkFlag == 1;
    *mark = fields_->vmarkStr;
    *propertyName = fields_->vmarkPname;
    return 1;
}

unsigned long BexDatarc::busNSimpleDispMode(int& flag, char& separator, char& crown) const {
    flag = fields_->busNSimpleDispFlag;
    separator = fields_->busNSimpleDispSepChar;
    crown = fields_->busNSimpleDispCrownChar;
    return 1;
}

unsigned long BexDatarc::busNSimpleDispMode(int& flag, char& separator, char& crown) {
    return std::as_const(*this).busNSimpleDispMode(flag, separator, crown);
}

unsigned long BexDatarc::busNSimpleDispMode(int& flag, YString* separator, YString* crown) const {
    flag = fields_->busNSimpleDispFlag;
    if (separator) *separator = YString(fields_->busNSimpleDispSepChar, 1);
    if (crown) *crown = YString(fields_->busNSimpleDispCrownChar, 1);
    return 1;
}

// The readers that give a field as it stands.
// clang-format off
const char*   BexDatarc::fileName() const                 { return fields_->fileName; }
BexOpenMode   BexDatarc::openMode() const                 { return fields_->openMode; }
const char*   BexDatarc::currentName() const              { return fields_->currentName; }
const char*   BexDatarc::currentDir() const               { return fields_->currentDir; }
char          BexDatarc::nlogicStartChar() const          { return fields_->nlogicStartChar; }
char          BexDatarc::nlogicEndChar() const            { return fields_->nlogicEndChar; }
char          BexDatarc::busStartChar() const             { return fields_->busStartChar; }
char          BexDatarc::busEndChar() const               { return fields_->busEndChar; }
char          BexDatarc::bitEndChar() const               { return fields_->bitEndChar; }
char          BexDatarc::rangeEndChar() const             { return fields_->rangeEndChar; }
char          BexDatarc::rangeStepChar() const            { return fields_->rangeStepChar; }
int           BexDatarc::defaultCompColor() const         { return fields_->defaultCompColor; }
unsigned int  BexDatarc::defaultFrameColor() const        { return fields_->defaultFrameColor; }
unsigned int  BexDatarc::defaultNetColor() const          { return fields_->defaultNetColor; }
unsigned int  BexDatarc::defaultBusColor() const          { return fields_->defaultBusColor; }
unsigned int  BexDatarc::defaultLineColor() const         { return fields_->defaultLineColor; }
unsigned int  BexDatarc::defaultCircleColor() const       { return fields_->defaultCircleColor; }
unsigned int  BexDatarc::defaultTextColor() const         { return fields_->defaultTextColor; }
unsigned int  BexDatarc::defaultPropBoxColor() const      { return fields_->defaultPropertyColor; }
unsigned int  BexDatarc::defaultSymbSheetColor() const    { return fields_->defaultSymbSheetColor; }
unsigned int  BexDatarc::defaultSchmSheetColor() const    { return fields_->defaultSchmSheetColor; }
unsigned int  BexDatarc::defaultSymbFrameColor() const    { return fields_->defaultSymbFrameColor; }
unsigned int  BexDatarc::defaultLineWidth() const         { return fields_->defaultLineWidth; }
unsigned int  BexDatarc::defaultFrameLineWidth() const    { return fields_->defaultFrameLineWidth; }
unsigned int  BexDatarc::defaultNetLineWidth() const      { return fields_->defaultNetLineWidth; }
unsigned int  BexDatarc::defaultBusLineWidth() const      { return fields_->defaultBusLineWidth; }
unsigned int  BexDatarc::defaultCircleLineWidth() const   { return fields_->defaultCircleLineWidth; }
unsigned long BexDatarc::defaultLineStyle() const         { return fields_->defaultLineStyle; }
unsigned long BexDatarc::defaultFrameLineStyle() const    { return fields_->defaultFrameLineStyle; }
unsigned long BexDatarc::defaultNetLineStyle() const      { return fields_->defaultNetLineStyle; }
unsigned long BexDatarc::defaultBusLineStyle() const      { return fields_->defaultBusLineStyle; }
unsigned long BexDatarc::defaultCircleLineStyle() const   { return fields_->defaultCircleLineStyle; }
unsigned int  BexDatarc::defaultFillStyle() const         { return fields_->defaultFillStyle; }
unsigned int  BexDatarc::defaultCircleFillStyle() const   { return fields_->defaultCircleFillStyle; }
unsigned int  BexDatarc::defaultTextFont() const          { return fields_->defaultTextFont; }
unsigned int  BexDatarc::defaultPropBoxFont() const       { return fields_->defaultPropertyFont; }
int           BexDatarc::propDispNum() const              { return fields_->propDispNum; }
int           BexDatarc::contentsViewer() const           { return fields_->contentsViewer; }
int           BexDatarc::contentsFrameIsVisible() const   { return fields_->contentsFrameIsVisible; }
YString       BexDatarc::contentsUnvisibleCmpType() const { return fields_->contentsUnvisibleCmpType; }
YString       BexDatarc::noMountAliasName() const         { return fields_->noMountAliasName; }
YString       BexDatarc::noMountAliasValue() const        { return fields_->noMountAliasValue; }
unsigned int  BexDatarc::noMountDispStyle() const         { return fields_->noMountDispStyle; }
YString       BexDatarc::nplNoMountCompAliasName() const  { return fields_->nplNoMountCompAliasName; }
YString       BexDatarc::nplNoMountCompAliasValue() const { return fields_->nplNoMountCompAliasValue; }
unsigned int  BexDatarc::nplNoMountCompDispStyle() const  { return fields_->nplNoMountCompDispStyle; }
unsigned long BexDatarc::useBusAlias() const              { return fields_->useBusAliasFlag; }
unsigned int  BexDatarc::createInstNetLabelMode() const   { return fields_->createNetLabelFromDefRef; }
unsigned int  BexDatarc::sheetNetErrorLevel() const       { return fields_->sheetNetErrorLevel; }
unsigned int  BexDatarc::overwritePortMode() const        { return fields_->overwritePortMode; }
unsigned long BexDatarc::simpleArrayMode() const          { return fields_->simpleArray; }
YString       BexDatarc::dateFormat() const               { return fields_->dateFormat; }
YString       BexDatarc::timeFormat() const               { return fields_->timeFormat; }
unsigned int  BexDatarc::precisionNumber() const          { return fields_->precisionNumber; }
// clang-format on
