# Settings of the reload.
noMountReload: YES
compRefmode: SELECT
pinRefmode: NONE
compProperty {
	VALUE
	TOLERANCE
	VALUE
}
pinProperty {
	PINTYPE
}
writeEmptyProperty: NO
writeEmptyPinProperty: NO
dispPartName: ( value )
skipCompByProp: ( MOUNT no )
checkSymbolPinMatching: YES
checkSymbolPinKey: PINKEY
