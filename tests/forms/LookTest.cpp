#include <QAbstractItemView>
#include <QDateEdit>
#include <QFileDialog>
#include <QMenuBar>

#include "SampleForm.h"
#include "forms/Frame.h"
#include "support/ScreenTest.h"

namespace {

class LookTest : public drivers::ScreenTest {
protected:
    // The colour of a control beside its text.
    static QString ColourOf(QWidget* control) {
        return control->grab().toImage().pixelColor(control->width() - 6, control->height() / 2).name();
    }
    static void Focus(QWidget* control) {
        control->setFocus();
        drivers::Settle();
    }
};

TEST_F(LookTest, ABoxIsYellowWithTheFocusAndGreyWhenItCannotBeWritten) {
    frmSample form;
    form.HighlightOnFocus({form.txtCode, form.txtAmount, form.cboTemp});
    form.txtAmount->setProperty("role", u"pale"_s);
    auto* readOnly = new QLineEdit(u"40084107"_s);
    readOnly->setReadOnly(true);
    form.layout()->addWidget(readOnly);
    form.Show();
    Focus(form.txtCode);
    EXPECT_EQ(ColourOf(form.txtCode), u"#ffff00"_s);
    EXPECT_EQ(form.txtCode->height(), 36);
    EXPECT_EQ(ColourOf(readOnly), u"#e0e0e0"_s);
    readOnly->setReadOnly(false);
    EXPECT_EQ(ColourOf(readOnly), u"#ffffff"_s);
    EXPECT_EQ(readOnly->height(), 36);

    EXPECT_EQ(ColourOf(form.txtAmount), u"#edf0f3"_s);
    Focus(form.txtAmount);
    EXPECT_EQ(ColourOf(form.txtAmount), u"#ffff00"_s);
    EXPECT_EQ(ColourOf(form.txtCode), u"#ffffff"_s);
    EXPECT_EQ(form.txtCode->height(), 36) << "the focus moves nothing";
    Focus(form.cboTemp);
    EXPECT_EQ(ColourOf(form.txtAmount), u"#ffffff"_s) << "grey until it had the focus";
    const QImage combo = form.cboTemp->grab().toImage();
    for (const int x : {5, combo.width() / 2, combo.width() - 5})
        EXPECT_EQ(combo.pixelColor(x, 8).name(), u"#ffff00"_s) << "an editable combo box, at " << x;
}

TEST_F(LookTest, WhatIsTouchedIsHighEnoughAndRowsCanBeToldApart) {
    frmSample form;
    form.cmdSave->setProperty("role", u"main"_s);
    auto* unit = new QComboBox;
    unit->addItems({u"pcs"_s, u"kg"_s});
    auto* calendar = new QDateEdit(QDate(2026, 11, 24));
    calendar->setCalendarPopup(true);
    form.layout()->addWidget(unit);
    form.layout()->addWidget(calendar);
    for (const auto& code : {u"1"_s, u"2"_s, u"3"_s, u"4"_s}) form.lv1->Add({code});
    form.lv1->Select(1);
    form.resize(600, 700);
    form.Show();
    drivers::Grab(form, u"look"_s);
    EXPECT_EQ(ColourOf(form.cmdSave), u"#0e6b63"_s);
    EXPECT_GE(form.cmdSave->height(), 44);
    EXPECT_EQ(calendar->height(), 36);
    const QImage rows = form.lv1->viewport()->grab().toImage();
    EXPECT_EQ(rows.pixelColor(2, 40 + 20).name(), u"#cfe7e3"_s) << "the chosen row";
    EXPECT_EQ(rows.pixelColor(2, 3 * 40 + 20).name(), u"#f6f8f9"_s) << "every second row";
    unit->showPopup();
    drivers::Settle();
    EXPECT_GE(unit->view()->visualRect(unit->model()->index(0, 0)).height(), 40);
    unit->hidePopup();
}

TEST_F(LookTest, TheFrameIsWhiteAndADialogFitsTheScreen) {
    forms::Frame frame;
    frame.menuBar()->addMenu(u"&Products"_s)->addAction(u"New Product"_s);
    frame.resize(700, 300);
    frame.show();
    drivers::Settle();
    EXPECT_EQ(frame.menuBar()->grab().toImage().pixelColor(600, 5).name(), u"#ffffff"_s);
    QFileDialog dialog(nullptr, u"Save as"_s, folder.path(), u"Report (*.txt)"_s);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.show();
    drivers::Settle();
    EXPECT_LT(dialog.height(), 700);
}

}  // namespace
