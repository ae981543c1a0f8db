# TALVO HK8800 systems - resource declaration.
# Resource version:2.1x
# japanese_coding:sjis
colorTable 2 {
	0	"•"
	1	"”’"
	2	"Ô"
	3	"—Î"
	4	"Â"
	5	"‰©"
	6	"…F"
	7	"‡"
	8	"ò"
	9	"’ƒ"
	10	"ŠDF"
	11	"®"
	12	"“"
	13	"‰©—Î"
	14	"‹â"
}
