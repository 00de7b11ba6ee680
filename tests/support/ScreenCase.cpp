#include "support/ScreenCase.h"

#include <QApplication>
#include <QCheckBox>

#include "forms/Controls.h"
#include "forms/Program.h"
#include "store/StorePath.h"

using namespace Qt::StringLiterals;

namespace drivers {

TEST_P(ScreenCase, Holds) {
    Play(GetParam().steps);
    EXPECT_FALSE(QApplication::overrideCursor());
}

void ScreenCase::Play(const Step& block) {
    for (const Step& step : block.inner) {
        // A case that has failed goes no further, but every form that is open closes.
        if (HasFailure() || IsSkipped()) return;
        PlayStep(step);
    }
}

void ScreenCase::PlayStep(const Step& step) {
    const testing::ScopedTrace trace(step.file.c_str(), step.line, step.text.toStdString());
    const QString word = step.text.section(u' ', 0, 0);
    ASSERT_TRUE(Words().contains(word)) << "nobody knows the word " << word.toStdString();
    ASSERT_TRUE(step.inner.empty() || WordsWithLines().contains(word) || !step.form.isEmpty())
        << "no form for the lines under it";
    const int before = boxes_.Left();
    if (!step.form.isEmpty())
        boxes_.ExpectForm(step.form, [&](QWidget& form) { PlayIn(static_cast<forms::Form&>(form), step); });
    try {
        Words()[word](*this, step.text.mid(word.size() + 1).replace(u"{folder}"_s, folder.path()), step);
    } catch (const std::exception& error) {
        ADD_FAILURE() << error.what();
    }
    const bool announces = boxes_.Left() > before && step.form.isEmpty();
    if (!announces && !HasFailure() && boxes_.Left() > 0) ADD_FAILURE() << "not all that was expected came up";
}

void ScreenCase::PlayIn(forms::Form& form, const Step& block) {
    const QPointer<forms::Form> guard = &form;
    forms_ << guard;
    Play(block);
    forms_.removeAll(guard);
    if (guard && guard->IsLoaded() && !forms::ProgramIsEnding()) guard->Unload();
}

void ScreenCase::LogInOnce() {
    if (!std::exchange(loggedIn_, true)) LogIn(user_);
}

QWidget& ScreenCase::Form() {
    while (!forms_.isEmpty() && !(forms_.last() && forms_.last()->IsLoaded())) forms_.removeLast();
    if (!forms_.isEmpty()) return *forms_.last();
    LogInOnce();
    return Sales();
}

// A control of the form, or else of the main window.
QObject* ScreenCase::Find(const QString& name) {
    QObject* found = Form().findChild<QObject*>(name);
    return found ? found : mdiORVA::Window().findChild<QObject*>(name);
}

QString ScreenCase::Shown(const QString& what) {
    const QString name = what.section(u'.', 0, 0);
    const QString property = what.section(u'.', 1);
    if (property.isEmpty()) return forms::TextOf(&Of<QWidget>(name));
    if (property == u"half") return QVariant(Of<QCheckBox>(name).checkState() == Qt::PartiallyChecked).toString();
    const QVariant value = Of<QObject>(name).property(property.toLatin1());
    EXPECT_TRUE(value.isValid()) << what.toStdString();
    return value.toString();
}

forms::ListView& ScreenCase::List(const QString& name) {
    if (!name.isEmpty()) return Of<forms::ListView>(name);
    auto* list = Form().findChild<forms::ListView*>(u"lv1"_s);
    for (auto* other : Form().findChildren<forms::ListView*>())
        if (!list && other->isVisible()) list = other;
    if (!list) throw std::runtime_error("the form has no list");
    return *list;
}

QStringList ScreenCase::ListRows(const QString& name) {
    QStringList rows;
    for (const QStringList& cells : drivers::List(Form(), List(name).objectName())) rows << cells.join(u'|');
    return rows;
}

std::unique_ptr<store::Database> ScreenCase::StoreOf(const QString& query) const {
    if (query.contains(u" Options"))
        return store::Database::Open(store::OptionsPlace(folder.path()), store::OptionsSchema());
    return OpenMain();
}

bool ScreenCase::AddWords(const QMap<QString, Word>& words, const QStringList& withLines) {
    Words().insert(words);
    WordsWithLines() += withLines;
    return true;
}

QStringList& ScreenCase::WordsWithLines() {
    static QStringList words{u"list"_s, u"rows"_s, u"load"_s};
    return words;
}

QMap<QString, ScreenCase::Word>& ScreenCase::Words() {
    static QMap<QString, Word> words = [] {
        QMap<QString, Word> all = States();
        for (const auto& some : {Deeds(), Announcements(), Checks()}) all.insert(some);
        return all;
    }();
    return words;
}

}  // namespace drivers
