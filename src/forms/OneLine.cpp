#include "forms/OneLine.h"

#include <QLineEdit>
#include <QValidator>

namespace forms {

namespace {

// Of a box that has shown a longer text than one may type: how much one may.
constexpr auto typedLength = "typedLength";

int TypedLength(const QLineEdit& box) {
    const QVariant told = box.property(typedLength);
    return told.isValid() ? told.toInt() : box.maxLength();
}

class OneLine : public QValidator {
public:
    explicit OneLine(QLineEdit* box) : QValidator(box), box_(*box), before_(box->text()) {}

    State validate(QString& text, int& caret) const override {
        // A box knows by itself whether its text was edited since the program set it.
        if (box_.isModified()) HoldAddition(text, caret);
        before_ = text;
        return Acceptable;
    }

private:
    // What the text has between what it shares with the one before.
    void HoldAddition(QString& text, int& caret) const {
        const qsizetype shorter = qMin(text.size(), before_.size());
        qsizetype start = 0;
        while (start < shorter && text[start] == before_[start]) ++start;
        qsizetype rest = 0;
        while (rest < shorter - start && text[text.size() - 1 - rest] == before_[before_.size() - 1 - rest]) ++rest;

        const QString added = text.sliced(start, text.size() - start - rest);
        const qsizetype room = qMax(qsizetype{0}, TypedLength(box_) - start - rest);
        const QString held = InOneLine(added, rest == 0).left(room);
        if (held == added) return;
        text = text.first(start) + held + text.last(rest);
        caret = qMin(caret, static_cast<int>(start + held.size()));
    }

    // A copied cell of a spreadsheet ends with a line break: a code with one is never found again, a name with one
    // breaks the lines of a receipt.
    static QString InOneLine(QString added, bool isEnd) {
        added.remove(u'\r');
        while (isEnd && added.endsWith(u'\n')) added.chop(1);
        return added.replace(u'\n', u' ');
    }

    const QLineEdit& box_;
    mutable QString before_;
};

}  // namespace

void KeepToOneLine(QLineEdit* box) {
    if (!box->validator()) box->setValidator(new OneLine(box));
}

void ShowWhole(QLineEdit* box, const QString& text) {
    if (text.size() > box->maxLength()) {
        box->setProperty(typedLength, TypedLength(*box));
        box->setMaxLength(static_cast<int>(text.size()));
    }
    box->setText(text);
}

}  // namespace forms
