OpenPin {
	( switch	ON )
	( color	2 )
}
OpenNode {
	( switch	ON )
	( color	2 )
}
FanOut {
	( switch	ON )
	( color	2 )
	( count	10 )
}
NearNet {
	( switch	ON )
	( color	2 )
	( clearance	5.0 )
}
NetlabelPosition {
	( switch	ON )
	( color	2 )
	( clearance	10.0 )
}
DuplicateReference {
	( switch	ON )
	( color	2 )
	( mode	pinNumber )
}
DuplicateNetLabel {
	( switch	ON )
	( color	2 )
}
DuplicateProperty {
	( switch	ON )
	( color	2 )
	( focus	all )
}
LackingProperty {
	( switch	ON )
	( color	2 )
}
ShortNet {
	( switch	ON )
	( color	2 )
}
UnmatchBus {
	( switch	ON )
	( color	2 )
}
PowerGround {
	( switch	ON )
	( color	2 )
}
