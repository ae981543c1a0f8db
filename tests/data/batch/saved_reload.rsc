noMountReload: YES
compRefmode: SELECT
pinRefmode: NONE
compProperty
{
	VALUE
	TOLERANCE
}
pinProperty
{
	PINTYPE
}
writeEmptyProperty: NO
writeEmptyPinProperty: NO
dispPartName: ( 
value partName )
skipCompByProp: ( 
MOUNT no always )
