// Input of comma-separated text files, such as parts lists exported from a spreadsheet.
//
//   file    = { line }                      a record is a line, or several joined by line feeds while a quote is open
//   record  = item { "," item }
//   item    = plain | '"' quoted '"'        plain: no comma, no double quote first; quoted: '""' is one quote
//
// Lines end in LF or CR LF. Every line counts: there are no comments, and nothing is trimmed. Japanese text is taken
// in the coding of the process, so that the second byte of a double-byte character is never a quote while quotes are
// counted; the splitting of a record into items looks at bytes alone.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/foundation/ygeneral/ystring_array.h"

// Gets the items of a record, in order.
class BEXA_API BexCsvItemReader {
public:
    virtual ~BexCsvItemReader() = default;
    // 0 stops the reading. The text is valid during the call.
    virtual unsigned long ReadItem(const char* item) = 0;
};

// One record. It may hold line feeds inside quotes.
class BEXA_API BexCsvLine {
public:
    // A null text counts as empty.
    explicit BexCsvLine(const char* text) : text_(text) {}

    const YString& GetString() const { return text_; }

    // Splits the record and hands its items to `reader`; the second argument has no effect. An empty record, and one
    // that begins with a line end, has no items. 0 when the reader is null or returns 0, and, before the first item is
    // handed on, when the record is malformed: a quote behind the unquoted start of an item, or anything but a comma
    // or the end behind a closing quote.
    unsigned long Read(BexCsvItemReader* reader, int unused) const;

private:
    friend class BexCsvInput;
    BexCsvLine() = default;

    YString text_;
};

// Gets the records of a file, in order.
class BEXA_API BexCsvLineReader {
public:
    virtual ~BexCsvLineReader() = default;
    // Records count from 0, the empty ones too, which are not handed on. 0 stops the reading.
    virtual unsigned long ReadLine(const BexCsvLine& line, int lineNumber) = 0;
};

// A file of records. The object holds the path alone: every operation reads the file from its start. Control
// characters other than the tab vanish from the records, NUL bytes too.
//
// Kept on purpose: a quote that is still open at the end of the file takes its record with it, without a notice; and
// the first byte of a double-byte character is dropped where its line ends.
class BEXA_API BexCsvInput {
public:
    // Always an object, to be ended by Close; the file is not looked at. A null path counts as empty.
    static BexCsvInput* Open(const char* path);
    // Null is allowed. Always 1.
    static unsigned long Close(BexCsvInput* input);

    const char* GetFilename() const { return path_; }

    // The number of records, empty ones included. 0 when the file can't be read.
    int HowManyLines() const;

    // Hands each record that isn't empty to `reader`. 0 when the reader is null or returns 0, or the file can't be
    // read; 1 at the end of the file. A malformed record doesn't stop the walk.
    unsigned long Read(BexCsvLineReader* reader) const;

    // The items of the record with this number; `items` is emptied first once the record is found. 0 when the file
    // can't be read, the record is not there or empty, or it is malformed. Each call costs a pass over the file.
    unsigned long ReadSelectedLine(YString_Array& items, int index);

protected:
    explicit BexCsvInput(const char* path) : path_(path) {}
    ~BexCsvInput() = default;

private:
    YString path_;
};
