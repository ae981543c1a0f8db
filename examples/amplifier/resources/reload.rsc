# What the reload takes back into the amplifier.
noMountReload: YES
compRefmode: ALL
pinRefmode: SELECT
compProperty
{
	VALUE
	TOLERANCE
	•”•i
}
pinProperty
{
	PINTYPE
}
writeEmptyProperty: NO
writeEmptyPinProperty: YES
dispPartName: ( VALUE )
skipCompByProp: ( MOUNT no )
checkSymbolPinMatching: yes
checkSymbolPinKey: PINNUMBER
