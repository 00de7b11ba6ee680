#pragma once

#include <QByteArray>
#include <QString>

class QTextDocument;

// Reads RTF into a document, in place of what it held. Returns in words what is wrong with the text, or nothing; what
// could be read up to there stands in the document.
//
// Understood are groups, the letters' b, i, ul, ulnone, fs, plain, the paragraphs' pard, par, line, tab, li, ri, fi,
// sb, sa, ql, qc, qr, outlinelevel (a heading), u with its fallback, 'hh by ansicpg, the usual named
// characters, and fields that are links. Tables of fonts, colours and styles are passed over, and so are starred
// destinations and unknown words. Twentieths of a point and half points become pixels as if an inch had 96, as the rest
// of the screens counts.
QString ReadRtf(const QByteArray& rtf, QTextDocument& document);
