# TALVO HK8800 systems - resource declaration.
# Resource version:2.1x
# japanese_coding:sjis
busStartChar : "["
lineStyleTable 4 {
	0	0	0	"Àü"
	1	4	2	"”jü"
}
