# The design-rule check of the amplifier.
OpenPin {
	( switch	ON )
	( color	3 )
	( pinKind	IN )
	( pinKind	POWER )
}
FanOut {
	( switch	ON )
	( color	2 )
	( count	20 )
}
NearNet {
	( switch	ON )
	( color	5 )
	( clearance	2.5 )
	( connectPin	OFF )
}
DuplicateNetLabel {
	( switch	OFF )
	( color	2 )
}
DuplicateProperty {
	( switch	ON )
	( color	6 )
	( focus	VALUE )
}
LackingProperty {
	( switch	ON )
	( color	11 )
	( focus	VALUE	íÔçR )
	( focus	TOLERANCE	ÉRÉìÉfÉìÉT )
}
