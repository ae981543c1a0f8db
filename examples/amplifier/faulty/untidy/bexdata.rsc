# TALVO HK8800 systems - resource declaration.
# Resource version:2.1x
# japanese_coding:sjis
lineWidth 2 {
	0	0
	1	0.25
}
defaultNetColor : 99
defaultLineWidth : 1
defaultBusLineWidth : 2
contPathTable 3 {
	0	"here"	"."
}
