#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "forms/Form.h"
#include "values/Error.h"

using namespace Qt::StringLiterals;

// A small screen for the tests: a code, an amount, a search text, a list and three buttons, in this tab order.
class frmSample : public forms::Form {
    Q_OBJECT

public:
    explicit frmSample(QWidget* parent = nullptr) : Form(parent) {
        setWindowTitle(u"Sample"_s);
        auto* column = new QVBoxLayout(this);
        const auto add = [&](QWidget* control, QStringView name) {
            control->setObjectName(name.toString());
            column->addWidget(control);
        };
        add(txtCode, u"txtCode");
        add(txtAmount, u"txtAmount");
        add(cboTemp, u"cboTemp");
        add(lv1, u"lv1");
        add(cmdSave, u"cmdSave");
        add(cmdDelete, u"cmdDelete");
        add(cmdClose, u"cmdClose");
        cboTemp->setEditable(true);
        lv1->SetColumns({{u"Code"_s, Qt::AlignLeft, 100}, {u"Name"_s, Qt::AlignLeft, -1}});
        On(cmdSave, &frmSample::cmdSave_Click);
        On(cmdDelete, &frmSample::cmdDelete_Click);
        On(cmdClose, &frmSample::cmdClose_Click);
    }

    QLineEdit* txtCode = new QLineEdit;
    QLineEdit* txtAmount = new QLineEdit;
    QComboBox* cboTemp = new QComboBox;
    forms::ListView* lv1 = new forms::ListView;
    QPushButton* cmdSave = new QPushButton(u"F5-Save"_s);
    QPushButton* cmdDelete = new QPushButton(u"F6-Delete"_s);
    QPushButton* cmdClose = new QPushButton(u"F12-Close"_s);

    // What happened, in order.
    QStringList log;
    std::function<void()> onLoad;
    std::function<void()> onSave;
    std::function<bool(QKeyEvent&)> onKey;
    bool refusesUnload = false;

    using Form::ControlKeys;
    using Form::EnterMovesOn;
    using Form::FunctionKeys;
    using Form::HighlightOnFocus;
    using Form::Keypad;
    using Form::KeypadOffers;
    using Form::KeypadSpares;
    using Form::ListKeys;
    using Form::NumericKeys;
    using Form::StoreErrorsEndProgram;

    void WatchCode() { OnLostFocus(txtCode, &frmSample::txtCode_LostFocus); }
    void WatchList() {
        OnMouseUp(lv1, Qt::LeftButton, &frmSample::lv1_LeftUp);
        OnMouseUp(lv1, Qt::RightButton, &frmSample::lv1_RightUp);
        OnDoubleClick(lv1, &frmSample::lv1_DblClick);
    }
    std::function<void()> Note(const QString& word) {
        return [this, word] { log << word; };
    }

protected:
    void Form_Load() override {
        log << u"load"_s;
        if (onLoad) onLoad();
    }
    void Form_Activate() override { log << u"activate"_s; }
    bool Form_Unload() override {
        log << u"unload"_s;
        return !refusesUnload;
    }
    bool Form_KeyDown(QKeyEvent& key) override { return (onKey && onKey(key)) || Form::Form_KeyDown(key); }

private:
    void cmdSave_Click() {
        log << u"save"_s;
        if (onSave) onSave();
    }
    void cmdDelete_Click() { log << u"delete"_s; }
    void cmdClose_Click() { Unload(); }
    void txtCode_LostFocus() { log << u"lost"_s; }
    void lv1_LeftUp() { log << u"left:%1"_s.arg(lv1->Selected()); }
    void lv1_RightUp() { log << u"right:%1"_s.arg(lv1->Selected()); }
    void lv1_DblClick() { log << u"double:%1"_s.arg(lv1->Selected()); }
};
