noMountReload: NO
compRefmode: ALL
pinRefmode: ALL
compProperty
{
}
pinProperty
{
}
writeEmptyProperty: YES
writeEmptyPinProperty: YES
dispPartName: ( 
)
skipCompByProp: ( 
)
