#include "core/Installation.h"

#include <algorithm>
#include <vector>

#include "output/Folder.h"
#include "values/IniFile.h"

using namespace Qt::StringLiterals;

namespace {

// What a key may say, and what each of it sets.
struct Choice {
    const char16_t* text;
    void (*set)(Installation& installation);
};

struct Key {
    const char16_t* section;
    const char16_t* name;
    std::vector<Choice> choices = {};
    QString& (*text)(Installation& installation) = nullptr;  // any text goes
};

using forms::Contrast;

constexpr int LongestShown = 48;

const std::vector<Key> Keys = {
    {u"heading", u"name", {}, [](Installation& i) -> QString& { return i.heading.NazivFirme; }},
    {u"heading", u"address", {}, [](Installation& i) -> QString& { return i.heading.Adresa; }},
    {u"heading", u"ident", {}, [](Installation& i) -> QString& { return i.heading.JIB; }},
    {u"heading", u"phone", {}, [](Installation& i) -> QString& { return i.heading.Tel; }},
    {u"till",
     u"sound",
     {{u"yes", [](Installation& i) { i.sound = true; }}, {u"no", [](Installation& i) { i.sound = false; }}}},
    {u"till",
     u"contrast",
     {{u"usual", [](Installation& i) { i.contrast = Contrast::Usual; }},
      {u"high", [](Installation& i) { i.contrast = Contrast::High; }},
      {u"dark", [](Installation& i) { i.contrast = Contrast::Dark; }}}},
};

bool Take(const Key& key, const QString& text, Installation& installation) {
    if (key.text != nullptr) {
        key.text(installation) = text;
        return true;
    }
    for (const Choice& choice : key.choices) {
        if (text.compare(QStringView(choice.text), Qt::CaseInsensitive) != 0) continue;
        choice.set(installation);
        return true;
    }
    return false;
}

QString Refusal(const Key& key, const values::IniFile::Value& value) {
    QStringList known;
    for (const Choice& choice : key.choices) known << QString::fromUtf16(choice.text);
    return u"velton.ini, line %1: %2 can't be \"%3\", only %4."_s.arg(value.line)
        .arg(QString::fromUtf16(key.name), value.text.left(LongestShown), known.join(u" or "_s));
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
            refused << u"velton.ini, line %1: there is no %2 in [%3]."_s.arg(key.line).arg(
                key.name.left(LongestShown), key.section.left(LongestShown));
    for (const Key& key : Keys) {
        const auto value = ini.Find(QString::fromUtf16(key.section), QString::fromUtf16(key.name));
        if (value && !Take(key, value->text, TheInstallation)) refused << Refusal(key, *value);
    }
    // Also read by programs without a screen.
    TheInstallation.backup = upkeep::ReadBackupPlan(ini, output::ProgramFolder(), refused);
    return refused;
}
