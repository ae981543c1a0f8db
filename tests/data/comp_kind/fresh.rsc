sNetNameHeader : SIG
bNetNameHeader : BUS
dBlockRefheader : X
dSymbolRefheader : SY
ComponentKind 3 {
}
