# TALVO HK8800 systems - resource declaration.
# Resource version:2.1x
# japanese_coding:sjis
message 2 {
	30031 "The file doesn't exist, is no plain file or can't be opened."
	30036 "The file has too many lines."
	30037 "A line of the file is too long."
	30038 "The file holds a character that is not allowed."
	30526 "Component"
	30527 "Component pin"
	30528 "Net"
	30529 "Bus"
	30530 "Net node"
	30531 "Symbol"
	30532 "Sheet"
	30533 "Frame"
	30534 "Other object"
}
