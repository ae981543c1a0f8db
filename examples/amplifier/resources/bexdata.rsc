# TALVO HK8800 systems - resource declaration.
# Resource version:2.1x
# japanese_coding:sjis
precisionTable 4 {
	0	"mm"	1000	1
}
precisionTblNo : 0
colorTable 5 {
	0	0	0	0	"黒"
	1	255	255	255	"白"
}
nlogicStartChar : "("
nlogicEndChar : ")"
busStartChar : "["
busEndChar : "]"
bitEndChar : ","
rangeEndChar : "-"
rangeStepChar : "-"
nodeSize : 1.5
cornerRadius : 5
textTable 9 {
	0	3.5	3	0.35	0	0	"-"	"-"	"標準"
	1	7	6	0.7	0	0	"-"	"-"	"見出し"
	2	2.5	2	0.25	0	0	"font/eng/thin.vec"	"font/jpn/thin.vec"	"部品番号"
	3	2.5	2	0.25	0.5	1	"-"	"font/kor/hangle.vec"	"ｺﾒﾝﾄ"
	4	10	9	1	0	0	"-"	"-"	"図面番号の表"
}
lineWidth 2 {
	0	0
	1	0.25
	2	0.5
	3	0.7
	4	1
}
lineStyleTable 5 {
	0	0	0	0	"実線"
	1	4	2	0	"破線"
	2	8	2	2	"一点鎖線"
	3	8	2	1	"二点鎖線"
}
fillStyleTable 7 {
	0	0	0	0	0	0	"なし"
	1	1	0	0	0	0	"塗りつぶし"
	2	2	2	0	45	0	"斜線"
	3	3	2.5	2.5	45	135	"格子"
}
defaultCompColor : -
defaultFrameColor : 1
defaultNetColor : 4
defaultBusColor : 5
defaultLineColor : 1
defaultCircleColor : 1
defaultTextColor : 1
defaultPropertyColor : 3
defaultSymbSheetColor : 0
defaultSchmSheetColor : 0
defaultSymbFrameColor : 13
defaultLineWidth : 1
defaultFrameLineWidth : 2
defaultNetLineWidth : 1
defaultBusLineWidth : 3
defaultCircleLineWidth : 1
defaultLineStyle : 0
defaultFrameLineStyle : 0
defaultNetLineStyle : 0
defaultBusLineStyle : 0
defaultCircleLineStyle : 1
defaultFillStyle : 0
defaultCircleFillStyle : 2
defaultTextFont : 0
defaultPropertyFont : 2
dataTrap : 0.5
symbPathTable 3 {
	0	"現在"	"."
	1	"部品庫"	"library"
	2	"共通"	"$AMPLIFIER_LIBRARY"
}
contPathTable 3 {
	0	"現在"	"."
	1	"回路"	"$CIRCUIT_PATH"
}
lcdbPathTable 3 {
	0	"部品表"	"$AMPLIFIER_LIBRARY/parts"
}
propDispNum : -1
contentsViewer : 1			# (1:VISIBLE 0:UNVISIBLE)
contentsFrameIsVisible : 1		# (1:VISIBLE 0:UNVISIBLE)
contentsUnvisibleCmpType : "None"		# (ex. "gate|parts|vcc....")
vmarkFlag : On
vmarkStr : "*"
vmarkPname : "reference"
noMountAliasName : "noMount"
noMountAliasValue : "未実装"
noMountDispStyle : 3		# (0:Normal 1:NoDisp 2:Grid 3:Dash)
busNSimpleDispFlag : 2			# (0:NONE 1:BOTH 2:BUS 3:NET)
busNSimpleDispSepChar : "_"
busNSimpleDispCrownChar : "*"
useBusAliasFlag : On
createNetLabelFromDefRef : On
sheetNetErrorLevel : Hard
overwritePortMode : sigToPort
simpleArray : YES
dateFormat : "YYYY年MM月DD日"
timeFormat : "HH時MM分"
nplNoMountCompAliasName : "noMountComponent"
nplNoMountCompAliasValue : ""
nplNoMountCompDispStyle : 0		# (0:Normal 1:NoDisp 2:Grid 3:Dash)
