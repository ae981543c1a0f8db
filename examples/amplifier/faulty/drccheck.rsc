OpenPin {
	( switch	OFF )
	pinKind
	( color	9 )
}
FanOut: 20
LackingProperty {
	( focus	VALUE )
}
