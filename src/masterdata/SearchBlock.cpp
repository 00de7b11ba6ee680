#include "masterdata/SearchBlock.h"

#include <QGridLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int FieldWidth = 190;

template <typename Control>
Control* Named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

}  // namespace

SearchBlock::SearchBlock(QWidget* parent)
    : QWidget(parent),
      cboView(Named(new QComboBox(this), u"cboView"_s)),
      cboTemp(Named(new QLineEdit(this), u"cboTemp"_s)),
      Option1(Named(new QRadioButton(this), u"Option1"_s)),
      Option2(Named(new QRadioButton(this), u"Option2"_s)),
      cmdRefresh(Named(new QPushButton(tr("F11-All"), this), u"cmdRefresh"_s)),
      lblField_(new QLabel(this)),
      lblText_(new QLabel(this)) {
    Option1->setChecked(true);
    cmdRefresh->setToolTip(tr("Show all"));
    for (QLabel* label : {lblField_, lblText_}) label->setProperty("role", u"muted"_s);
    SetCaptions({.field = tr("Search in:"),
                 .text = tr("Enter the text you're looking for:"),
                 .anywhere = tr("any &where in the text"),
                 .fromBeginning = tr("from the &beginning")});
    LayOut(false);
    setFocusProxy(cboView);  // the first of the block in the order of the Tab key
}

void SearchBlock::SetCaptions(const Captions& captions) {
    lblField_->setText(captions.field);
    lblText_->setText(captions.text);
    Option1->setText(captions.anywhere);
    Option2->setText(captions.fromBeginning);
}

void SearchBlock::MakeNarrow() {
    delete layout();
    cmdRefresh->hide();
    LayOut(true);
}

void SearchBlock::LayOut(bool isNarrow) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 10, 12, 10);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(6);
    if (isNarrow) {
        grid->addWidget(lblField_, 0, 0);
        grid->addWidget(cboView, 0, 1);
        grid->addWidget(lblText_, 1, 0);
        grid->addWidget(cboTemp, 1, 1);
        grid->addWidget(Option1, 2, 0);
        grid->addWidget(Option2, 2, 1);
        grid->setColumnStretch(1, 1);
        return;
    }
    cboView->setMinimumWidth(FieldWidth);
    grid->addWidget(lblField_, 0, 0);
    grid->addWidget(lblText_, 0, 1);
    grid->addWidget(Option1, 0, 2);
    grid->addWidget(cboView, 1, 0);
    grid->addWidget(cboTemp, 1, 1);
    grid->addWidget(Option2, 1, 2);
    grid->addWidget(cmdRefresh, 0, 3, 2, 1, Qt::AlignBottom);
    grid->setColumnStretch(1, 1);
}

QString SearchBlock::Condition(const QString& field) const {
    const QString before = Option1->isChecked() ? u"*"_s : QString();
    return u" WHERE "_s + field + u" LIKE '"_s + before + cboTemp->text() + u"*'"_s;
}
