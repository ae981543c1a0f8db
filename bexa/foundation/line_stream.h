// A text and data stream over a standard file handle.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <cstdio>

// Reads lines, several at once if asked, and values in the manner of stream operators. The file on disk is in
// Shift-JIS; in an EUC process text is converted on its way in and out, save by the "pure" operations. Files are
// opened in binary mode: line ends are not translated. Every operation on a closed stream does nothing, so that an
// unopened one is safe to use.
class BEXA_API BexStream {
public:
    enum mode : int {
        ReadOnly = 0,     // "rb"
        Write = 1,        // "wb"
        Append = 2,       // "ab"
        ReadUpdate = 3,   // "rb+"
        WriteUpdate = 4,  // "wb+"
        AppendUpdate = 5, // "ab+"
    };
    enum dir : int { FromStart = 0, FromHere = 1, FromEnd = 2 };

    BexStream();
    // Opens at once; a failure leaves the stream closed.
    BexStream(const char* path, BexStream::mode mode);
    ~BexStream();
    BexStream(const BexStream&) = delete;
    BexStream& operator=(const BexStream&) = delete;

    // Closes an open file first. 1 if the file is open now; a mode outside the list and a null path open nothing.
    unsigned long open(const char* path, BexStream::mode mode);
    // 1 only if a file was open and all of it could be written out. The stream is closed in any case.
    unsigned long close();

    // Moves in the file: from its start, or from `origin`; another origin does nothing.
    BexStream& seek(long offset);
    BexStream& seek(long offset, BexStream::dir origin);
    // The place in the file; 0 when closed.
    long tell();

    // The states of the file; both true when closed.
    unsigned long eof() const;
    unsigned long fail() const;

    // Reads `count` lines of any length and gives them as one text, joined by line feeds, without the last one's; 0
    // lines are an empty text. The end of the file stops the reading, and what was gathered is the result. eof() tells
    // the end, never a null result: null means a closed stream. A NUL byte in the file hides the rest of the text from
    // its reader; the lines behind it are not touched by that. The text is valid until the next line is read.
    // Kept on purpose: the line feed that was put behind the last line stays if no other line follows.
    const char* getlines(unsigned int count);
    // The same without conversion.
    const char* getpurelines(unsigned int count);
    // The same two, tolerant of carriage returns. Kept on purpose: only the first carriage return of each piece of at
    // most 254 bytes is looked at. If a line feed follows it the pair ends the line; otherwise a carriage return that
    // ends the piece is removed, and any other stays.
    const char* getlinesEx(unsigned int count);
    const char* getpurelinesEx(unsigned int count);

    // Writes a text without conversion. 0 when closed or `text` is null.
    unsigned long putpurechar(const char* text);

    // Read as fscanf does with "%c", "%s", "%d", "%ld", "%lf", "%f", "%u", "%lx", and numbers for the short forms cut
    // to 16 bits. What can't be read leaves its target as it was. The buffer of the text form must be large enough,
    // for the converted text too; in an EUC process the text in it is converted.
    BexStream& operator>>(char& value);
    BexStream& operator>>(char* value);
    BexStream& operator>>(int& value);
    BexStream& operator>>(long& value);
    BexStream& operator>>(double& value);
    BexStream& operator>>(float& value);
    BexStream& operator>>(unsigned int& value);
    // Kept on purpose: reads hexadecimal, while `<<` writes decimal, so that a number comes back as another one.
    BexStream& operator>>(unsigned long& value);
    BexStream& operator>>(short& value);
    BexStream& operator>>(unsigned short& value);

    // Write as fprintf does with "%c", "%s", "%d", "%ld", "%lf", "%f", "%u", "%lu". A null text writes nothing. In an
    // EUC process a text that can't be converted is written up to the fault.
    BexStream& operator<<(char value);
    BexStream& operator<<(const char* value);
    BexStream& operator<<(int value);
    BexStream& operator<<(long value);
    BexStream& operator<<(double value);
    BexStream& operator<<(float value);
    BexStream& operator<<(unsigned int value);
    BexStream& operator<<(unsigned long value);
    BexStream& operator<<(short value);
    BexStream& operator<<(unsigned short value);

    // So that BexEndl and BexFlush can stand among the values.
    BexStream& operator<<(BexStream& (*action)(BexStream&)) { return action(*this); }

private:
    friend BEXA_API BexStream& BexEndl(BexStream& stream);
    friend BEXA_API BexStream& BexFlush(BexStream& stream);

    enum class Conversion { None, ToProcess };
    enum class CarriageReturns { Kept, Tolerated };

    const char* readLines(unsigned int count, Conversion conversion, CarriageReturns returns);
    bool readLine(CarriageReturns returns);
    template <class Value>
    BexStream& read(const char* format, Value* value);
    template <class Value>
    BexStream& write(const char* format, Value value);

    std::FILE* file_ = nullptr;
    YString line_;
    YString work_;
    unsigned long toEuc_;
};

// Writes a line feed.
BEXA_API BexStream& BexEndl(BexStream& stream);
// Hands what was written to the operating system.
BEXA_API BexStream& BexFlush(BexStream& stream);
