#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QDateEdit>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QTimer>

#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/MsgBox.h"
#include "support/ScreenTest.h"

using namespace Qt::StringLiterals;

namespace {

QPushButton* Button(const QString& text, const QString& role = {}) {
    auto* button = new QPushButton(text);
    button->setProperty("role", role);
    return button;
}

QLabel* Label(const QString& text, const QString& role = u"muted"_s) {
    auto* label = new QLabel(text);
    label->setProperty("role", role);
    return label;
}

QLineEdit* Field(const QString& text, bool readOnly = false) {
    auto* box = new QLineEdit(text);
    box->setReadOnly(readOnly);
    return box;
}

QFrame* Panel(const QString& role = u"panel"_s) {
    auto* panel = new QFrame;
    panel->setProperty("role", role);
    return panel;
}

// A list screen as most of them are.
class frmLookList : public forms::Form {
    Q_OBJECT

public:
    frmLookList() {
        setWindowTitle(u"Products"_s);
        auto* column = new QVBoxLayout(this);
        auto* panel = Panel();
        auto* search = new QGridLayout(panel);
        search->addWidget(Label(u"Search in:"_s), 0, 0);
        search->addWidget(Label(u"Enter the text you're looking for:"_s), 0, 1);
        auto* fields = new QComboBox;
        fields->addItem(u"Product name"_s);
        search->addWidget(fields, 1, 0);
        search->addWidget(text, 1, 1);
        search->setColumnStretch(1, 1);
        auto* anywhere = new QRadioButton(u"any &where in the text"_s);
        anywhere->setChecked(true);
        search->addWidget(anywhere, 0, 2);
        search->addWidget(new QRadioButton(u"from the &beginning"_s), 1, 2);
        search->addWidget(Button(u"F11-All"_s), 1, 3);
        column->addWidget(panel);

        list->SetColumns({{u"ProductID - BarCode"_s, Qt::AlignLeft, 160},
                          {u"Product name"_s, Qt::AlignLeft, -1},
                          {u"Quantity"_s, Qt::AlignRight, 90},
                          {u"Unit"_s, Qt::AlignLeft, 70},
                          {u"Price"_s, Qt::AlignRight, 90},
                          {u"Tax rate"_s, Qt::AlignRight, 90}});
        list->Add({u"40084107"_s, u"Čokolada mliječna 100 g"_s, u"42"_s, u"pcs"_s, u"3,20"_s, u"17,00"_s});
        list->Add({u"40084114"_s, u"Čokolada tamna 70 % 100 g"_s, u"17"_s, u"pcs"_s, u"3,60"_s, u"17,00"_s});
        list->Add({u"8000500"_s, u"Čokoladni namaz 400 g"_s, u"9"_s, u"pcs"_s, u"7,95"_s, u"17,00"_s});
        list->Add({u"9000017"_s, u"Topla čokolada"_s, u"-3"_s, u"pcs"_s, u"2,80"_s, u"17,00"_s});
        list->Select(1);
        column->addWidget(list);

        auto* row = new QHBoxLayout;
        row->addWidget(main);
        row->addWidget(Button(u"F4-Edit"_s));
        row->addWidget(Button(u"F6-Delete"_s, u"danger"_s));
        row->addStretch();
        row->addWidget(Button(u"F1-Help"_s));
        row->addWidget(Button(u"F12-Close"_s));
        column->addLayout(row);
        HighlightOnFocus({text});
        text->setFocus();
        resize(1000, 640);
    }

    QLineEdit* text = Field(u"čoko"_s);
    forms::ListView* list = new forms::ListView;
    QPushButton* main = Button(u"F5-New"_s, u"main"_s);
};

// One control of each further kind.
class frmLookControls : public forms::Form {
    Q_OBJECT

public:
    frmLookControls() {
        setWindowTitle(u"Controls"_s);
        auto* column = new QVBoxLayout(this);
        auto* panel = Panel();
        auto* grid = new QGridLayout(panel);
        grid->addWidget(Label(u"ProductID - BarCode"_s), 0, 0, Qt::AlignRight);
        grid->addWidget(readOnly, 0, 1);
        grid->addWidget(Label(u"Product name"_s), 1, 0, Qt::AlignRight);
        grid->addWidget(focused, 1, 1, 1, 3);
        grid->addWidget(Label(u"Unit:"_s), 2, 0, Qt::AlignRight);
        unit->addItems({u"pcs"_s, u"kg"_s});
        grid->addWidget(unit, 2, 1);
        editable->setEditable(true);
        editable->setEditText(u"choose user"_s);
        grid->addWidget(editable, 2, 2);
        grid->addWidget(new QDateEdit(QDate(2026, 11, 24)), 2, 3);
        calendar->setCalendarPopup(true);
        grid->addWidget(calendar, 3, 1);
        auto* off = Field(u"switched off"_s);
        off->setEnabled(false);
        grid->addWidget(off, 3, 2);
        auto* empty = Field({});
        empty->setPlaceholderText(u"Custumer Ident"_s);
        grid->addWidget(empty, 3, 3);
        pale->setProperty("role", u"pale"_s);
        grid->addWidget(pale, 0, 2);
        auto* entry = Field(u"3850104003217"_s);
        entry->setProperty("role", u"entry"_s);
        grid->addWidget(entry, 4, 1);
        auto* figure = Field(u"2,35"_s, true);
        figure->setProperty("role", u"entry"_s);
        figure->setAlignment(Qt::AlignRight);
        grid->addWidget(figure, 4, 2);
        auto* mainOff = Button(u"ADD on INVOICE"_s, u"main"_s);
        mainOff->setEnabled(false);
        grid->addWidget(mainOff, 4, 3);
        column->addWidget(panel);

        auto* row = new QHBoxLayout;
        auto* group = new QGroupBox(u"60 secunds for login"_s);
        auto* inGroup = new QVBoxLayout(group);
        auto* on = new QCheckBox(u"Print the recapitulation"_s);
        on->setChecked(true);
        inGroup->addWidget(on);
        inGroup->addWidget(new QCheckBox(u"Customer display"_s));
        auto* choice = new QRadioButton(u"Port 1"_s);
        choice->setChecked(true);
        inGroup->addWidget(choice);
        auto* gone = new QRadioButton(u"not today"_s);
        gone->setEnabled(false);
        inGroup->addWidget(gone);
        auto* bar = new QProgressBar;
        bar->setValue(40);
        bar->setTextVisible(false);
        inGroup->addWidget(bar);
        row->addWidget(group);

        auto* tabs = new QTabWidget;
        auto* list = new forms::ListView;
        list->SetColumns({{u"TaxID"_s, Qt::AlignLeft, -1}, {u"Amount"_s, Qt::AlignRight, 90}});
        for (int i = 0; i < 9; ++i) list->Add({u"P"_s, u"20,44"_s});
        tabs->addTab(list, u"Pića"_s);
        tabs->addTab(new QTextEdit(u"text"_s), u"Topli napitci"_s);
        tabs->addTab(new QWidget, u"Kruh"_s);
        row->addWidget(tabs);
        column->addLayout(row);

        auto* night = Panel(u"night"_s);
        auto* sum = new QGridLayout(night);
        sum->addWidget(Label(u"TOTAL"_s, u"nightText"_s), 0, 0);
        sum->addWidget(Label(u"22,44"_s, u"total"_s), 0, 1, Qt::AlignRight);
        column->addWidget(night);
        auto* strip = Panel(u"strip"_s);
        auto* line = new QHBoxLayout(strip);
        line->addWidget(Label(u"1 x Novine   2,00 = 2,00"_s, {}));
        line->addWidget(Label(u"1042"_s, u"strong"_s));
        line->addWidget(Label(u"kasir"_s, u"accent"_s));
        line->addWidget(Label(u"heading"_s, u"heading"_s));
        column->addWidget(strip);

        off_ = new QFrame;
        off_->setProperty("role", u"panel"_s);
        auto* closed = new QHBoxLayout(off_);
        closed->addWidget(Label(u"Quantity:"_s));
        closed->addWidget(Field(u"1"_s));
        closed->addWidget(new QComboBox);
        closed->addWidget(Button(u"ADD on INVOICE"_s, u"main"_s));
        closed->addWidget(Button(u"Esc-Delete"_s, u"danger"_s));
        off_->setEnabled(false);
        column->addWidget(off_);
        HighlightOnFocus({focused, editable, pale});
        focused->setFocus();
        resize(760, 700);
    }

    QComboBox* unit = new QComboBox;
    QComboBox* editable = new QComboBox;
    QDateEdit* calendar = new QDateEdit(QDate(2026, 11, 24));
    QLineEdit* readOnly = Field(u"40084107"_s, true);
    QLineEdit* pale = Field(u"12"_s);
    QLineEdit* focused = Field(u"Čokolada mliječna 100 g"_s);

private:
    QFrame* off_;
};

class LookTest : public drivers::ScreenTest {
protected:
    // The colour of a control beside its text.
    static QString ColourOf(QWidget* control) {
        return control->grab().toImage().pixelColor(control->width() - 6, control->height() / 2).name();
    }
};

TEST_F(LookTest, AListScreen) {
    frmLookList form;
    form.Show();
    drivers::Grab(form, u"look-list"_s);
    EXPECT_EQ(ColourOf(form.text), u"#ffff00"_s);
    EXPECT_EQ(ColourOf(form.main), u"#0e6b63"_s);
    const QImage rows = form.list->viewport()->grab().toImage();
    EXPECT_EQ(rows.pixelColor(2, 34 + 17).name(), u"#cfe7e3"_s) << "the chosen row";
    EXPECT_EQ(rows.pixelColor(2, 3 * 34 + 17).name(), u"#f6f8f9"_s) << "every second row";
    EXPECT_GE(form.main->height(), 44);
    EXPECT_EQ(form.text->height(), 36) << "the focus moves nothing";

    form.main->setFocus();
    drivers::Settle();
    EXPECT_EQ(ColourOf(form.text), u"#ffffff"_s);
    EXPECT_EQ(form.text->height(), 36);
}

TEST_F(LookTest, ControlsOfEachKind) {
    frmLookControls form;
    form.Show();
    drivers::Grab(form, u"look-controls"_s);
    EXPECT_EQ(ColourOf(form.focused), u"#ffff00"_s);
    EXPECT_EQ(ColourOf(form.readOnly), u"#e0e0e0"_s);
    form.readOnly->setReadOnly(false);
    EXPECT_EQ(ColourOf(form.readOnly), u"#ffffff"_s);
    EXPECT_EQ(form.readOnly->height(), 36);

    EXPECT_EQ(ColourOf(form.pale), u"#edf0f3"_s);
    form.pale->setFocus();
    EXPECT_EQ(ColourOf(form.pale), u"#ffff00"_s);

    form.editable->setFocus();
    drivers::Settle();
    EXPECT_EQ(ColourOf(form.pale), u"#ffffff"_s) << "grey until it had the focus";
    const QImage combo = form.editable->grab().toImage();
    for (const int x : {5, combo.width() / 2, combo.width() - 5})
        EXPECT_EQ(combo.pixelColor(x, 8).name(), u"#ffff00"_s) << "an editable combo box, at " << x;

    form.unit->showPopup();
    drivers::Grab(*form.unit->view()->window(), u"look-popup"_s);
    EXPECT_GE(form.unit->view()->visualRect(form.unit->model()->index(0, 0)).height(), 34);
    form.unit->hidePopup();
}

TEST_F(LookTest, TheFrameAndItsMenu) {
    forms::Frame frame;
    frame.setWindowTitle(u"VELTON POS"_s);
    auto* menu = frame.menuBar()->addMenu(u"&Products"_s);
    menu->addAction(u"New Product"_s);
    menu->addSeparator();
    menu->addAction(u"Products list"_s)->setEnabled(false);
    frame.menuBar()->addMenu(u"&Invoices"_s)->setEnabled(false);
    frame.statusBar()->addWidget(new QLabel(u"VELTON"_s));
    auto* total = new QLabel(u"1.284,55"_s);
    total->setProperty("role", u"figure"_s);
    frame.statusBar()->addPermanentWidget(total);
    frame.resize(700, 300);
    frame.show();
    menu->popup(frame.mapToGlobal(QPoint(10, 40)));
    drivers::Grab(*menu, u"look-menu"_s);
    menu->close();
    drivers::Grab(frame, u"look-frame"_s);
    EXPECT_EQ(frame.menuBar()->grab().toImage().pixelColor(600, 5).name(), u"#ffffff"_s);
}

TEST_F(LookTest, TheCalendarOfADateBox) {
    frmLookControls form;
    form.Show();
    drivers::Settle();
    drivers::Grab(*form.calendar->calendarWidget(), u"look-calendar"_s);
    EXPECT_EQ(form.calendar->height(), 36);
}

TEST_F(LookTest, AFileDialog) {
    QFileDialog dialog(nullptr, u"Save as"_s, folder.path(), u"Report (*.txt)"_s);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.show();
    drivers::Grab(dialog, u"look-files"_s);
    EXPECT_LT(dialog.height(), 700);
}

TEST_F(LookTest, AMessageBox) {
    drivers::Boxes boxes;
    boxes.Expect(u"Do you want cancel the invoice?"_s, QMessageBox::No);
    QTimer::singleShot(0, qApp, [] {
        if (QWidget* box = QApplication::activeModalWidget()) drivers::Grab(*box, u"look-box"_s);
    });
    EXPECT_FALSE(forms::Ask(u"Do you want cancel the invoice?"_s, u"VELTON POS"_s));
}

}  // namespace

#include "LookTest.moc"
