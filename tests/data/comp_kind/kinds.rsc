sNetNameHeader : N
bNetNameHeader : B
dBlockRefheader : BLK
dSymbolRefheader : SYM
ComponentKind 3 {
	3		"resistor"	"R"
	1		"integrated circuit"	"U"
	7		"ƒ\ƒ{ƒ}"	"C"
}
