# TALVO HK8800 systems - resource declaration.
# Resource version:2.1x
# japanese_coding:sjis
gridVisible : On
