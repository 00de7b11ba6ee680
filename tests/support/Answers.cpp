#include "support/Answers.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <deque>
#include <optional>

#include "forms/Form.h"
#include "player/Keys.h"
#include "player/ModalWatch.h"

using namespace Qt::StringLiterals;

namespace drivers {

namespace {

struct Expected {
    enum class Kind { Box, Form, File } kind;
    // The box's text, the form's class, or the file's path.
    QString text;
    QMessageBox::StandardButton button = QMessageBox::Ok;
    std::optional<QString> title = {};
    std::optional<QMessageBox::Icon> icon = {};
    QString keys = {};
    std::function<void(QWidget&)> script = {};
    bool beginning = false;
};

bool Fits(const Expected& expected, const QMessageBox& box) {
    if (expected.kind != Expected::Kind::Box) return false;
    return expected.beginning ? box.text().startsWith(expected.text) : box.text() == expected.text;
}

std::deque<Expected> queue;

std::string Words(const Expected& expected) {
    switch (expected.kind) {
        case Expected::Kind::Box:
            return "the box \"" + expected.text.toStdString() + '"';
        case Expected::Kind::Form:
            return "the form " + expected.text.toStdString();
        case Expected::Kind::File:
            return "a file dialog for \"" + expected.text.toStdString() + '"';
    }
    return {};
}

std::string Next() {
    return queue.empty() ? "nothing" : Words(queue.front());
}

std::optional<Expected> TakeNext(Expected::Kind kind) {
    if (queue.empty() || queue.front().kind != kind) return std::nullopt;
    Expected next = std::move(queue.front());
    queue.pop_front();
    return next;
}

void AnswerBox(QMessageBox& box) {
    if (queue.empty() || !Fits(queue.front(), box)) {
        ADD_FAILURE() << "the box \"" << box.text().toStdString() << "\" came up; expected was " << Next();
        box.reject();
        return;
    }
    const Expected expected = *TakeNext(Expected::Kind::Box);
    EXPECT_EQ(box.windowTitle().toStdString(), expected.title.value_or(box.windowTitle()).toStdString());
    EXPECT_EQ(box.icon(), expected.icon.value_or(box.icon())) << Words(expected);
    if (!expected.keys.isEmpty()) return Keys(expected.keys);
    if (expected.script) return expected.script(box);
    if (QAbstractButton* button = box.button(expected.button)) return button->click();
    ADD_FAILURE() << Words(expected) << " has no such button";
    box.reject();
}

void AnswerFileDialog(QFileDialog& dialog) {
    const auto expected = TakeNext(Expected::Kind::File);
    if (!expected) ADD_FAILURE() << "a file dialog came up; expected was " << Next();
    if (expected && expected->title) {
        EXPECT_EQ(dialog.windowTitle(), *expected->title);
    }
    if (!expected || expected->text.isEmpty()) return dialog.reject();
    auto* name = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
    ASSERT_TRUE(name);
    name->setText(expected->text);
    QMetaObject::invokeMethod(&dialog, "accept");
}

bool RunScript(forms::Form& form) {
    if (queue.empty() || queue.front().kind != Expected::Kind::Form || queue.front().text != form.objectName())
        return false;
    const Expected expected = *TakeNext(Expected::Kind::Form);
    expected.script(form);
    return true;
}

bool Attend(QWidget& modal) {
    if (auto* box = qobject_cast<QMessageBox*>(&modal)) return AnswerBox(*box), true;
    if (auto* dialog = qobject_cast<QFileDialog*>(&modal)) return AnswerFileDialog(*dialog), true;
    auto* form = qobject_cast<forms::Form*>(&modal);
    return form && RunScript(*form);
}

void TellThatNobodyAttends(const QWidget& modal) {
    ADD_FAILURE() << "nobody answers " << modal.metaObject()->className() << " \"" << modal.windowTitle().toStdString()
                  << "\"; expected was " << Next();
}

}  // namespace

Boxes::~Boxes() {
    for (const Expected& expected : queue) ADD_FAILURE() << Words(expected) << " never came up";
    queue.clear();
}

Boxes& Boxes::Expect(const QString& text, QMessageBox::StandardButton button) {
    queue.push_back({.kind = Expected::Kind::Box, .text = text, .button = button});
    return *this;
}

Boxes& Boxes::ExpectBeginning(const QString& text, QMessageBox::StandardButton button) {
    Expect(text, button);
    queue.back().beginning = true;
    return *this;
}

Boxes& Boxes::Titled(const QString& title) {
    queue.back().title = title;
    return *this;
}

Boxes& Boxes::WithIcon(QMessageBox::Icon icon) {
    queue.back().icon = icon;
    return *this;
}

Boxes& Boxes::Typing(const QString& keys) {
    queue.back().keys = keys;
    return *this;
}

Boxes& Boxes::Doing(std::function<void(QMessageBox&)> script) {
    queue.back().script = [script = std::move(script)](QWidget& box) { script(static_cast<QMessageBox&>(box)); };
    return *this;
}

Boxes& Boxes::ExpectForm(const QString& className, std::function<void(QWidget&)> script) {
    queue.push_back({.kind = Expected::Kind::Form, .text = className, .script = std::move(script)});
    return *this;
}

Boxes& Boxes::ExpectFile(const QString& path) {
    queue.push_back({.kind = Expected::Kind::File, .text = path});
    return *this;
}

int Boxes::Left() const {
    return static_cast<int>(queue.size());
}

void WatchModalWindows() {
    static const ModalWatch watch(Attend, TellThatNobodyAttends);
}

}  // namespace drivers
