#pragma once

#include <QByteArrayView>
#include <QString>

namespace store {

// Text comparison of the stores: by code points after Unicode simple case folding, so that "Čaj" equals "čaj" and no
// locale plays a part. Indexes on disk depend on it. Texts are UTF-8.
char32_t FoldCase(char32_t codePoint);
int CompareFolded(QByteArrayView a, QByteArrayView b);  // below 0, 0 or above 0

// A text with every character folded.
QByteArray FoldedText(QByteArrayView text);

// Whether two texts are one to the stores.
bool SameText(const QString& a, const QString& b);

// Takes the next code point off the front of a text that is not empty; a broken sequence gives U+FFFD.
char32_t TakeCodePoint(QByteArrayView& text);

// A text from its first character on that folds to the one given; empty when there is none.
QByteArrayView FromFolded(QByteArrayView text, char32_t folded);

}  // namespace store
