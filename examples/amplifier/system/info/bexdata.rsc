# TALVO HK8800 systems - resource declaration.
# Resource version:2.1x
# japanese_coding:sjis
busStartChar : "["
busEndChar : "]"
bitEndChar : ","
rangeEndChar : "-"
rangeStepChar : "-"
textTable 9 {
	0	3.5	3	0.35	0	0	"-"	"-"	"標準"
	1	7	6	0.7	0	0	"-"	"-"	"見出し"
	2	2.5	2	0.25	0	0	"font/eng/thin.vec"	"font/jpn/thin.vec"	"部品番号"
	3	2.5	2	0.25	0.5	1	"-"	"font/kor/hangle.vec"	"ｺﾒﾝﾄ"
	4	10	9	1	0	0	"-"	"-"	"図面番号の表"
}
