netLabelHeader 2 {
	"SIG"	12
}
busLabelHeader 2 {
	"BUS"	3
}
referenceHeader 2 {
	"SY"	1
	"X"	4
	"U"	27
	"R"	113
}
