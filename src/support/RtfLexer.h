#pragma once

#include <QByteArray>

// The first stage of reading RTF: its bytes as tokens, never failing whatever the bytes are.
struct RtfToken {
    enum Kind { GroupOpens, GroupCloses, Word, Text, End };

    Kind kind = End;
    QByteArray text =
        {};         // a word without its backslash ("fs", or "*" and the like), or text in the text's own code page
    int value = 0;  // a word's number
    bool hasValue = false;

    int ValueOr(int other) const { return hasValue ? value : other; }
    // "\b" and "\b1" switch on, "\b0" switches off.
    bool IsOn() const { return ValueOr(1) != 0; }
};

class RtfLexer {
public:
    explicit RtfLexer(const QByteArray& rtf) : rtf_(rtf) {}

    RtfToken Next();
    // Whether nothing but blanks and line ends follows.
    bool IsAtEnd() const;

private:
    bool More() const { return at_ < rtf_.size(); }
    char Take() { return rtf_[at_++]; }
    QByteArray TakeLetters();
    int TakeNumber();

    RtfToken Escape();
    RtfToken HexByte();
    RtfToken ControlWord();
    RtfToken PlainText();

    QByteArray rtf_;
    qsizetype at_ = 0;
};
