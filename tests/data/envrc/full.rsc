# TALVO HK8800 systems - resource declaration.
# Resource version:2.1x
# japanese_coding:sjis
screenTrap : 123456
panRatio : 7
zoomRatio : -2
adjustRatio : 1e+09
dFocus : cPin
areaMode : inter
roundRectCornerRadius : 0
gridTable 5 {
	0	2	3	5	6.25
	1	1	1	2.54	2.54
}
inputGrid : Off
echoGrid : Off
gridColor : 7
symSheetSizeTable 6 {
	0	"A4 wide"	-1	-2.5	297	210
	1	"small"	0	0	20	20
}
symSheetSizeColor : 8
symSheetDispFlag : Off
schSheetSizeTable 8 {
	0	"A3"	0	0	420	297	5	"frame a3"
	1	"A4"	10	10	297	210	0	""
}
schSheetAttrTable 3 {
	0	"author"	"M. Sato"
	1	"title"	"main board"
}
schSheetSizeColor : 9
schSheetDispFlag : Off
symbolPath : 3
cScale : 0.001
cPvScaleFlag : Off
cAngle : -90
cSearchFlag : Off
cCutinFlag : On
netInputMode : semiAuto
nSearchFlag : Off
busInputMode : Auto
bSearchFlag : On
netTheta : 720
slide : On
mvSearchFlag : On
mvPvGridFlag : On
cpSearchFlag : On
pasteSearchFlag : On
deleteWithNet : On
netDupCheck : Off
swapSConnMode : cpin
swapSDisconnChgPin : On
cpNetLabelIncrement : 100000
cbufWithNetLabel : Off
cbufWithReference : Cut
ripperStyle : Curl
ripperDir : CCW
pvJustify : upperRight
pvAngle : 0.5
pvDispMode : NameValue
pvOffsetFromObjX : -2.5
pvOffsetFromObjY : 0.0005
lineInputMode : semiAuto
lineTheta : 30
circleInputMode : edge
circleRadius : 200000
textJustify : lowerCenter
textAngle : 400
sPinDispFlag : Off
zonePitchX : -5
zonePitchY : 0
zoneStartTextX : x
zoneStartTextY : 9
zoneOrigin : UpRight
zoneDispFlag : Off
zoneOffsetX : -7
zoneOffsetY : 8
zoneOffsetMode : CenterCross
compIDDispFlag : On
netIDDispFlag : On
cPinIDDispFlag : On
sPinIDDispFlag : On
pvIDDispFlag : On
backupTime : 0
undoLimit : 5000
openCheckMarkFlag : Off
openCheckMarkColor : 11
liftPointCPin : Off
dispRoute : On
measureColor : 12
measureFontForUNIX : "9x15"
measureFontForWIN : "Courier/9/Bold"
measureDisp : relative
measurePos : fixed
dynamicScroll : Off
chgNetLabelScope : Connection
chgNetLabelDispFlag : Off
chgNetLabelAutoRefMode : On
chgNetLabelListHeightSize : 200
chgNetLabelViewSelectBusLabel : Off
selectNetDialogBootMode : On
cpsSelectMode : adjust
cpsSearchMode : allSheet
UnloadedSymbolCheck : check
UpdatedSymbolCheckFlag : Off
symbDefaultcompType : net|gnd
saveAreaFlag : Off
BlockCheckTiming : None
moveSignMode : bus
dynPanFlag : On
autoSaveRuleCheck : Instance
autoSaveReload : On
autoSaveReloadKeyName : "key"
autoSaveReloadRscFile : "reload.rsc"
zipText : On
doNotSelectUnvisiblePbox : On
