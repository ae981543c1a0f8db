// The life of an environment resource, and its plain readers.

#include "bexa/envrc/envrc.h"

#include "bexa/envrc/envrc_fields.h"
#include "bexa/foundation/rsc_lifecycle.h"
#include "bexa/foundation/unit_scale.h"

using bexa::detail::EmptyPath;
using bexa::detail::NullObject;
using bexa::detail::RscAccess;

namespace {

// The thousandths of a millimetre, whatever the unit of the circuit.
constexpr double unitFactor = 1000.0;

Yangle angleOf(double degrees) {
    return Yangle(degrees * bexa::detail::radiansPerDegree);
}

} // namespace

BexEnvrc* BexEnvrc::open(const char* path, BexOpenMode mode, BexDatarc* datarc, const char* currentDir) {
    return RscAccess::open<BexEnvrc, EmptyPath::Refused>(path, mode, path, mode, datarc, currentDir);
}

unsigned long BexEnvrc::close(BexEnvrc* envrc, BexCloseMode mode) {
    // A read-only object that isn't to be saved just ends, whatever else the mode says.
    if (envrc && envrc->openMode() == BexOpenRead && mode != BexCloseSave) mode = BexCloseDiscard;
    return RscAccess::close<NullObject::Refused>(envrc, mode,
                                                 [](const BexEnvrc& open) { return open.save(); });
}

unsigned long BexEnvrc::save() const {
    return bexa::detail::saveByMode(openMode(),
                                    [this](BexSaveMode mode) { return saveAs(fileName(), mode); });
}

unsigned long BexEnvrc::saveAs(const char* path, BexSaveMode mode) const {
    return bexa::detail::maySave(path, mode) && save(path);
}

long BexEnvrc::encode(double value) const {
    return bexa::detail::wholeUnits(value, unitFactor);
}

double BexEnvrc::decode(long value) const {
    return bexa::detail::lengthOf(value, unitFactor);
}

const char* BexEnvrc::fileName() const {
    return fileName_;
}

BexOpenMode BexEnvrc::openMode() const {
    return openMode_;
}

const char* BexEnvrc::currentDir() const {
    return currentDir_;
}

// clang-format off
const char*         BexEnvrc::dProject() const                      { return data_->dProject; }
int                 BexEnvrc::screenTrap() const                    { return data_->screenTrap; }
double              BexEnvrc::panRatio() const                      { return data_->panRatio; }
double              BexEnvrc::zoomRatio() const                     { return data_->zoomRatio; }
double              BexEnvrc::adjustRatio() const                   { return data_->adjustRatio; }
BexObjectType       BexEnvrc::dFocus() const                        { return static_cast<BexObjectType>(data_->dFocus); }
BexPickType         BexEnvrc::areaMode() const                      { return static_cast<BexPickType>(data_->areaMode); }
double              BexEnvrc::roundRectCornerRadius() const         { return data_->roundRectCornerRadius; }
unsigned long       BexEnvrc::dynamicScroll() const                 { return data_->dynamicScroll; }
unsigned long       BexEnvrc::dynamicPan() const                    { return data_->dynamicPan; }
unsigned long       BexEnvrc::saveArea() const                      { return data_->saveArea; }
unsigned long       BexEnvrc::inputGrid() const                     { return data_->inputGrid; }
unsigned long       BexEnvrc::echoGrid() const                      { return data_->echoGrid; }
unsigned int        BexEnvrc::gridColor() const                     { return data_->gridColor; }
unsigned long       BexEnvrc::symSheetDispFlag() const              { return data_->symSheetDispFlag; }
unsigned int        BexEnvrc::symSheetSizeColor() const             { return data_->symSheetSizeColor; }
unsigned long       BexEnvrc::schSheetDispFlag() const              { return data_->schSheetDispFlag; }
unsigned int        BexEnvrc::schSheetSizeColor() const             { return data_->schSheetSizeColor; }
int                 BexEnvrc::symbolPath() const                    { return data_->symbolPath; }
double              BexEnvrc::cScale() const                        { return data_->cScale; }
unsigned long       BexEnvrc::cPvScaleFlag() const                  { return data_->cPvScaleFlag; }
Yangle              BexEnvrc::cAngle() const                        { return angleOf(data_->cAngle); }
unsigned long       BexEnvrc::cSearchFlag() const                   { return data_->cSearchFlag; }
unsigned long       BexEnvrc::cCutinFlag() const                    { return data_->cCutinFlag; }
unsigned int        BexEnvrc::symbDefaultcompType() const           { return data_->symbDefaultcompType; }
BexNetInputType     BexEnvrc::netInputMode() const                  { return static_cast<BexNetInputType>(data_->netInputMode); }
unsigned long       BexEnvrc::nSearchFlag() const                   { return data_->nSearchFlag; }
BexNetInputType     BexEnvrc::busInputMode() const                  { return static_cast<BexNetInputType>(data_->busInputMode); }
unsigned long       BexEnvrc::bSearchFlag() const                   { return data_->bSearchFlag; }
Yangle              BexEnvrc::netTheta() const                      { return angleOf(data_->netTheta); }
BexRipperStyle      BexEnvrc::ripperStyle() const                   { return static_cast<BexRipperStyle>(data_->ripperStyle); }
BexRipperDir        BexEnvrc::ripperDir() const                     { return static_cast<BexRipperDir>(data_->ripperDir); }
unsigned long       BexEnvrc::netDupCheck() const                   { return data_->netDupCheck; }
unsigned char       BexEnvrc::pvJustify() const                     { return static_cast<unsigned char>(data_->pvJustify); }
Yangle              BexEnvrc::pvAngle() const                       { return angleOf(data_->pvAngle); }
unsigned int        BexEnvrc::pvDispMode() const                    { return static_cast<unsigned int>(data_->pvDispMode); }
long                BexEnvrc::pvOffsetFromObjX() const              { return encode(data_->pvOffsetFromObjX); }
long                BexEnvrc::pvOffsetFromObjY() const              { return encode(data_->pvOffsetFromObjY); }
unsigned long       BexEnvrc::doNotSelectUnivisiblePbox() const     { return data_->doNotSelectUnivisiblePbox; }
BexLineInputType    BexEnvrc::lineInputMode() const                 { return static_cast<BexLineInputType>(data_->lineInputMode); }
Yangle              BexEnvrc::lineTheta() const                     { return angleOf(data_->lineTheta); }
BexCircleInputType  BexEnvrc::circleInputMode() const               { return static_cast<BexCircleInputType>(data_->circleInputMode); }
long                BexEnvrc::circleRadius() const                  { return encode(data_->circleRadius); }
unsigned char       BexEnvrc::textJustify() const                   { return static_cast<unsigned char>(data_->textJustify); }
Yangle              BexEnvrc::textAngle() const                     { return angleOf(data_->textAngle); }
unsigned long       BexEnvrc::zipText() const                       { return data_->zipText; }
long                BexEnvrc::zonePitchX() const                    { return encode(data_->zonePitchX); }
long                BexEnvrc::zonePitchY() const                    { return encode(data_->zonePitchY); }
char                BexEnvrc::zoneStartTextX() const                { return data_->zoneStartTextX; }
char                BexEnvrc::zoneStartTextY() const                { return data_->zoneStartTextY; }
unsigned char       BexEnvrc::zoneOrigin() const                    { return static_cast<unsigned char>(data_->zoneOrigin); }
unsigned long       BexEnvrc::zoneDispFlag() const                  { return data_->zoneDispFlag; }
long                BexEnvrc::zoneOffsetX() const                   { return encode(data_->zoneOffsetX); }
long                BexEnvrc::zoneOffsetY() const                   { return encode(data_->zoneOffsetY); }
BexZoneAutoOffset   BexEnvrc::zoneOffsetMode() const                { return static_cast<BexZoneAutoOffset>(data_->zoneOffsetMode); }
unsigned long       BexEnvrc::sPinDispFlag() const                  { return data_->sPinDispFlag; }
unsigned long       BexEnvrc::compIDDispFlag() const                { return data_->compIDDispFlag; }
unsigned long       BexEnvrc::netIDDispFlag() const                 { return data_->netIDDispFlag; }
unsigned long       BexEnvrc::cPinIDDispFlag() const                { return data_->cPinIDDispFlag; }
unsigned long       BexEnvrc::sPinIDDispFlag() const                { return data_->sPinIDDispFlag; }
unsigned long       BexEnvrc::pvIDDispFlag() const                  { return data_->pvIDDispFlag; }
unsigned long       BexEnvrc::openCheckFlag() const                 { return data_->openCheckFlag; }
unsigned int        BexEnvrc::openCheckMarkColor() const            { return data_->openCheckMarkColor; }
unsigned long       BexEnvrc::liftPointCPin() const                 { return data_->liftPointCPin; }
unsigned long       BexEnvrc::dispRoute() const                     { return data_->dispRoute; }
unsigned int        BexEnvrc::measureColor() const                  { return data_->measureColor; }
const char*         BexEnvrc::measureFont() const                   { return data_->measureFont; }
BexMeasureDisp      BexEnvrc::measureDisp() const                   { return static_cast<BexMeasureDisp>(data_->measureDisp); }
BexMeasurePos       BexEnvrc::measurePos() const                    { return static_cast<BexMeasurePos>(data_->measurePos); }
unsigned long       BexEnvrc::slide() const                         { return data_->slide; }
unsigned long       BexEnvrc::mvSearchFlag() const                  { return data_->mvSearchFlag; }
unsigned long       BexEnvrc::mvPvGridFlag() const                  { return data_->mvPvGridFlag; }
unsigned long       BexEnvrc::cpSearchFlag() const                  { return data_->cpSearchFlag; }
unsigned long       BexEnvrc::mcpSearchFlag() const                 { return data_->mcpSearchFlag; }
unsigned long       BexEnvrc::pasteSearchFlag() const               { return data_->pasteSearchFlag; }
unsigned long       BexEnvrc::deleteWithNet() const                 { return data_->deleteWithNet; }
BexCBufWithMode     BexEnvrc::cbufWithNetLabel() const              { return static_cast<BexCBufWithMode>(data_->cbufWithNetLabel); }
BexCBufWithMode     BexEnvrc::cbufWithReference() const             { return static_cast<BexCBufWithMode>(data_->cbufWithReference); }
BexSwapSConnMode    BexEnvrc::swapSConnMode() const                 { return static_cast<BexSwapSConnMode>(data_->swapSConnMode); }
unsigned long       BexEnvrc::swapSDisconnChgPin() const            { return data_->swapSDisconnChgPin; }
unsigned int        BexEnvrc::cpNetLabelIncrement() const           { return data_->cpNetLabelIncrement; }
int                 BexEnvrc::moveSignMode() const                  { return data_->moveSignMode; }
BexChgNetLabelScope BexEnvrc::chgNetLabelScope() const              { return static_cast<BexChgNetLabelScope>(data_->chgNetLabelScope); }
unsigned long       BexEnvrc::chgNetLabelDispFlag() const           { return data_->chgNetLabelDispFlag; }
unsigned long       BexEnvrc::chgNetLabelAutoRefMode() const        { return data_->chgNetLabelAutoRefMode; }
unsigned int        BexEnvrc::chgNetLabelListWidthSize() const      { return data_->chgNetLabelListWidthSize; }
unsigned int        BexEnvrc::chgNetLabelListHeightSize() const     { return data_->chgNetLabelListHeightSize; }
unsigned long       BexEnvrc::chgNetLabelViewSelectBusLabel() const { return data_->chgNetLabelViewSelectBusLabel; }
unsigned long       BexEnvrc::selectNetDialogBootMode() const       { return data_->selectNetDialogBootMode; }
BexCpsSelectMode    BexEnvrc::cpsSelectMode() const                 { return static_cast<BexCpsSelectMode>(data_->cpsSelectMode); }
BexCpsSearchMode    BexEnvrc::cpsSearchMode() const                 { return static_cast<BexCpsSearchMode>(data_->cpsSearchMode); }
unsigned int        BexEnvrc::backupTime() const                    { return data_->backupTime; }
unsigned int        BexEnvrc::undoLimit() const                     { return data_->undoLimit; }
const char*         BexEnvrc::logfile() const                       { return data_->logfile; }
BexUnloadSymbCheck  BexEnvrc::UnloadedSymbolCheck() const           { return static_cast<BexUnloadSymbCheck>(data_->UnloadedSymbolCheck); }
unsigned long       BexEnvrc::UpdatedSymbolCheck() const            { return data_->UpdatedSymbolCheck; }
BexBlockCheckTiming BexEnvrc::BlockCheckTiming() const              { return static_cast<BexBlockCheckTiming>(data_->BlockCheckTiming); }
int                 BexEnvrc::autoSaveRuleCheck() const             { return data_->autoSaveRuleCheck; }
unsigned long       BexEnvrc::autoSaveReload() const                { return data_->autoSaveReload; }
const char*         BexEnvrc::autoSaveReloadKeyName() const         { return data_->autoSaveReloadKeyName; }
const char*         BexEnvrc::autoSaveReloadRscFile() const         { return data_->autoSaveReloadRscFile; }
// clang-format on
