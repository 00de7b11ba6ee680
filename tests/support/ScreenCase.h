#pragma once

#include <QMap>
#include <QPointer>

#include "support/CaseText.h"
#include "support/Till.h"

namespace drivers {

// Plays a case of tests/data/screens: a line is a word and what it is about. A text stands as it is, several of them
// between " | ", and {folder} for where the case plays; a form that a line brings up stands behind " => ", and the
// lines under it are played in that form, which is closed after them if it is still there. Every box that a line brings
// up stands in the lines before it, and has to come with that line and no later. Without a `login` of its own a case
// begins with the administrator at the till, or with the user that `as` names.
//
// To begin with, and in between:
//   run QUERY            an action query, on the store that has the table; another register acts like this, too
//   load TABLE           the rows under it: names of fields, then a line a row, cells divided by |
//   as USER; login USER; login (the screen alone); crash; restart (a crash, and the user of `as` again)
//   locale NAME; clock DATE TIME; clipboard TEXT; write FILE | TEXT; remove FILE; folder NAME
//   stick                a folder {folder}-stick outside of the register's; backup-program: the till's backups are not
//                        made, but noted in the file "started"
//   engine SQL | SQL     behind the store's back, as its file and as its server take it
//   server goes, server comes   (back); where the stores are there
// What is done:
//   open ENTRY           of the menu; keys KEYS; go CONTROL (it gets the focus); close (by its window)
//   type CONTROL KEYS    over what stands there
//   click CONTROL, tool NAME (of the tool bar), tab NUMBER
//   in FORM              goes on in a form that is open beside the others, until it is gone
//   clickrow N, rightclickrow N, doubleclickrow N     of the form's list; -1 is below its rows; selectrow N
// What comes up, in this order, at the next thing that is done:
//   box TEXT | TITLE | ICON | BUTTON   Ok is pressed, or the button; "3021..." is how a text begins,
//   pick PATH | TITLE                  a file is chosen, or with no path none
//   help FILE                          comes up and is closed
// What has to be:
//   see CONTROL=TEXT | CONTROL.property=VALUE | CONTROL^BEGINNING | CONTROL~PART | CONTROL!NO PART | CONTROL$END
//   focus CONTROL; title TEXT; loaded FORM; unloaded FORM; ended CODE (of the program); goes-on
//   list, row N CELLS, codes CODE | CODE, count N     the list, the cells of a row joined by |; list NAME
//   rows QUERY           with the rows under it
//   runs FIELD=TEXT      settings in force
//   comes NAME           a file, within some seconds
//   file NAME=TEXT       and the other signs of `see`; nofile NAME; copied FILE | OTHER | END (the other and this)
class ScreenCase : public TillTest, public testing::WithParamInterface<CaseText> {
public:
    using Word = std::function<void(ScreenCase& at, const QString& rest, const Step& step)>;
    // Words of a room's own; some of them have lines under them without a form.
    static bool AddWords(const QMap<QString, Word>& words, const QStringList& withLines = {});

    // The form in which the case is played.
    QWidget& Form();
    void GoOnIn(forms::Form& form) { forms_ << &form; }
    Boxes& Coming() { return boxes_; }
    using TillTest::Crash;
    using TillTest::File;
    using TillTest::LogIn;
    using TillTest::OpenMain;
    using TillTest::Path;
    using TillTest::Setting;

protected:
    void Play(const Step& block);

private:
    static QMap<QString, Word>& Words();
    static QStringList& WordsWithLines();
    static QMap<QString, Word> States();
    static QMap<QString, Word> Deeds();
    static QMap<QString, Word> Announcements();
    static QMap<QString, Word> Checks();

    void PlayStep(const Step& step);
    void PlayIn(forms::Form& form, const Step& block);
    void LogInOnce();
    std::unique_ptr<store::Database> StoreOf(const QString& query) const;
    QObject* Find(const QString& name);
    template <typename T>
    T& Of(const QString& name) {
        auto* found = qobject_cast<T*>(Find(name));
        if (!found) throw std::runtime_error("there is no " + name.toStdString());
        return *found;
    }
    QWidget& Control(const QString& name) { return Of<QWidget>(name); }
    QString Shown(const QString& what);
    forms::ListView& List(const QString& name = {});
    QStringList ListRows(const QString& name = {});

    Boxes boxes_;
    QList<QPointer<forms::Form>> forms_;
    QString user_ = QStringLiteral("admin");
    bool loggedIn_ = false;
};

// A setting in force, by its field.
QString SettingInForce(const QString& field);

}  // namespace drivers

// All cases of some topics, in the test program of their room.
#define INSTANTIATE_SCREEN_CASES(room, ...)                                                                   \
    INSTANTIATE_TEST_SUITE_P(room, ScreenCase,                                                                \
                             testing::ValuesIn(drivers::ReadCases(QStringLiteral("screens"), {__VA_ARGS__})), \
                             [](const auto& info) { return info.param.name.toStdString(); })
