noMountReload: YES
compProperty: VALUE
dispPartName: ( VALUE partName TOLERANCE )
