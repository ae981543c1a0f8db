OpenPin {
	( switch	OFF )
	( color	3 )
	( pinKind	IN )
	( pinKind	OUT )
}
OpenNode {
	( switch	ON )
	( color	4 )
}
FanOut {
	( switch	OFF )
	( color	5 )
	( count	20 )
}
NearNet {
	( switch	OFF )
	( color	6 )
	( clearance	2.5 )
}
NetlabelPosition {
	( switch	ON )
	( color	7 )
	( clearance	7.5 )
}
DuplicateReference {
	( switch	OFF )
	( color	8 )
	( mode	pinNumber )
}
DuplicateNetLabel {
	( switch	OFF )
	( color	9 )
}
DuplicateProperty {
	( switch	OFF )
	( color	10 )
	( focus	VALUE )
}
LackingProperty {
	( switch	ON )
	( color	11 )
	( focus	VALUE	resistor )
	( focus	TOLERANCE	capacitor )
}
ShortNet {
	( switch	OFF )
	( color	12 )
}
UnmatchBus {
	( switch	ON )
	( color	13 )
}
PowerGround {
	( switch	OFF )
	( color	14 )
}
