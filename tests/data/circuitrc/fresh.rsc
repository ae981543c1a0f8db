# TALVO HK8800 systems - resource declaration.
# Resource version:2.1x
# japanese_coding:sjis
nlogicStartChar : "("
nlogicEndChar : ")"
busStartChar : "["
busEndChar : "]"
bitEndChar : ","
rangeEndChar : "-"
rangeStepChar : "-"
nodeSize : 2
cornerRadius : 10
textTable 9 {
	0	10	10	0	0	0	"-"	"-"	"def"
}
lineWidth 2 {
	0	0
}
lineStyleTable 5 {
	0	0	0	0	"solid"
	1	10	10	0	"dash"
	2	10	2	5	"dash1"
	3	10	2	5	"dash2"
}
fillStyleTable 7 {
	0	0	0	0	0	0	"none"
	1	1	0	0	0	0	"solid"
}
defaultCompColor : -
defaultFrameColor : 0
defaultNetColor : 0
defaultBusColor : 0
defaultLineColor : 0
defaultCircleColor : 0
defaultTextColor : 0
defaultPropertyColor : 0
defaultSymbFrameColor : 13
defaultLineWidth : 0
defaultFrameLineWidth : 0
defaultNetLineWidth : 0
defaultBusLineWidth : 0
defaultCircleLineWidth : 0
defaultLineStyle : 0
defaultFrameLineStyle : 0
defaultNetLineStyle : 0
defaultBusLineStyle : 0
defaultCircleLineStyle : 0
defaultFillStyle : 0
defaultTextFont : 0
defaultPropertyFont : 0
dataTrap : 0.5
symbPathTable 3 {
	0	"current"	"."
}
contPathTable 3 {
	0	"current"	"."
}
lcdbPathTable 3 {
	0	"system"	"."
}
propDispNum : -1
contentsViewer : 1			# (1:VISIBLE 0:UNVISIBLE)
contentsFrameIsVisible : 1		# (1:VISIBLE 0:UNVISIBLE)
contentsUnvisibleCmpType : "None"		# (ex. "gate|parts|vcc....")
vmarkFlag : Off
vmarkStr : "*"
vmarkPname : "reference"
noMountAliasName : "noMount"
noMountAliasValue : ""
noMountDispStyle : 0		# (0:Normal 1:NoDisp 2:Grid 3:Dash)
nplNoMountCompAliasName : "noMountComponent"
nplNoMountCompAliasValue : ""
nplNoMountCompDispStyle : 0		# (0:Normal 1:NoDisp 2:Grid 3:Dash)
