#pragma once

#include <QTextDocument>

// What a document shows, one line a paragraph: its distances in brackets (li, fi, sb, sa in pixels, h for a heading),
// then its text; letters between tags, "{20}" before another size, "/" for a line end and "»" for a tab.
QString ShownParagraphs(const QTextDocument& document);
