#include "core/Installation.h"

#include <algorithm>
#include <functional>
#include <vector>

#include "core/CoreWords.h"
#include "output/Folder.h"
#include "values/IniFile.h"
#include "values/Language.h"

using namespace Qt::StringLiterals;

namespace {

// What a key may say, and what each of it sets.
struct Choice {
    QString text;
    std::function<void(Installation& installation)> set;
};

struct Key {
    const char16_t* section;
    const char16_t* name;
    std::vector<Choice> choices = {};
    QString& (*text)(Installation& installation) = nullptr;  // any text goes
};

using forms::Contrast;

constexpr int LongestShown = 48;

std::vector<Choice> LanguagesFor(QString Installation::*member) {
    std::vector<Choice> choices;
    for (const values::Language& language : values::Languages())
        choices.push_back({language.code, [member, code = language.code](Installation& i) { i.*member = code; }});
    return choices;
}

const std::vector<Key> Keys = {
    {u"heading", u"name", {}, [](Installation& i) -> QString& { return i.heading.NazivFirme; }},
    {u"heading", u"address", {}, [](Installation& i) -> QString& { return i.heading.Adresa; }},
    {u"heading", u"ident", {}, [](Installation& i) -> QString& { return i.heading.JIB; }},
    {u"heading", u"phone", {}, [](Installation& i) -> QString& { return i.heading.Tel; }},
    {u"till",
     u"sound",
     {{u"yes"_s, [](Installation& i) { i.sound = true; }}, {u"no"_s, [](Installation& i) { i.sound = false; }}}},
    {u"till",
     u"contrast",
     {{u"usual"_s, [](Installation& i) { i.contrast = Contrast::Usual; }},
      {u"high"_s, [](Installation& i) { i.contrast = Contrast::High; }},
      {u"dark"_s, [](Installation& i) { i.contrast = Contrast::Dark; }}}},
    {u"language", u"screens", LanguagesFor(&Installation::screens)},
    {u"language", u"paper", LanguagesFor(&Installation::paper)},
};

bool Take(const Key& key, const QString& text, Installation& installation) {
    if (key.text != nullptr) {
        key.text(installation) = text;
        return true;
    }
    for (const Choice& choice : key.choices) {
        if (text.compare(choice.text, Qt::CaseInsensitive) != 0) continue;
        choice.set(installation);
        return true;
    }
    return false;
}

QString Refusal(const Key& key, const values::IniFile::Value& value) {
    QStringList known;
    for (const Choice& choice : key.choices) known << choice.text;
    //: %4: the words that it may be, "yes or no"
    return CoreWords::tr("velton.ini, line %1: %2 can't be \"%3\", only %4.")
        .arg(QString::number(value.line), QString::fromUtf16(key.name), value.text.left(LongestShown),
             //: between two words that a setting may be, with its blanks
             known.join(CoreWords::tr(" or ")));
}

bool IsKnown(const values::IniFile::Key& key) {
    return upkeep::IsBackupKey(key.section, key.name) || std::ranges::any_of(Keys, [&](const Key& known) {
               return key.section.compare(QStringView(known.section), Qt::CaseInsensitive) == 0 &&
                      key.name.compare(QStringView(known.name), Qt::CaseInsensitive) == 0;
           });
}

}  // namespace

QStringList ReadInstallation() {
    const auto ini = values::IniFile::Read(output::InProgramFolder(u"velton.ini"_s));
    QStringList refused;
    TheInstallation = {};
    for (const auto& key : ini.Keys())
        if (!IsKnown(key))
            refused << CoreWords::tr("velton.ini, line %1: there is no %2 in [%3].")
                           .arg(QString::number(key.line), key.name.left(LongestShown), key.section.left(LongestShown));
    for (const Key& key : Keys) {
        const auto value = ini.Find(QString::fromUtf16(key.section), QString::fromUtf16(key.name));
        if (value && !Take(key, value->text, TheInstallation)) refused << Refusal(key, *value);
    }
    // Also read by programs without a screen.
    TheInstallation.backup = upkeep::ReadBackupPlan(ini, output::ProgramFolder(), refused);
    return refused;
}
