#include "values/Language.h"

#include <QLibraryInfo>
#include <QTranslator>
#include <memory>

#include "values/FileError.h"
#include "values/IniFile.h"

using namespace Qt::StringLiterals;

namespace values {

const std::vector<Language>& Languages() {
    static const std::vector<Language> all = {{u"bs"_s, u"Bosanski"_s},
                                              {u"de"_s, u"Deutsch"_s},
                                              {u"en"_s, u"English"_s},
                                              {u"hr"_s, u"Hrvatski"_s},
                                              {u"sr_Latn"_s, u"Srpski (latinica)"_s}};
    return all;
}

namespace {

// Of one language's texts those of the paper, or all the others.
class PartOfTexts : public QTranslator {
public:
    explicit PartOfTexts(Shown where) : where_(where) {}

    QString translate(const char* context, const char* text, const char* comment, int n) const override {
        const bool isPaper = QLatin1StringView(context) == "Paper"_L1;
        return isPaper == (where_ == Shown::OnPaper) ? QTranslator::translate(context, text, comment, n) : QString();
    }

private:
    const Shown where_;
};

struct InUse {
    QString code;
    std::vector<std::unique_ptr<QTranslator>> translators;
};

InUse& InUseFor(Shown where) {
    static InUse screens, paper;
    return where == Shown::OnPaper ? paper : screens;
}

// As it is written in the names of files; empty when there is none.
QString Known(const QString& code) {
    for (const Language& language : Languages())
        if (language.code.compare(code, Qt::CaseInsensitive) == 0) return language.code;
    return {};
}

}  // namespace

QString LanguageFor(const QStringList& wanted) {
    for (const QString& name : wanted) {
        const QString language = name.section(u'-', 0, 0);
        if (const QString code = Known(language == u"sr" ? u"sr_Latn"_s : language); !code.isEmpty()) return code;
    }
    return {};
}

void UseLanguage(Shown where, const QString& wanted) {
    InUse& inUse = InUseFor(where);
    inUse.translators.clear();  // a translator that goes takes itself out of the program
    inUse.code = Known(wanted);
    if (inUse.code.isEmpty()) return;
    const auto install = [&](std::unique_ptr<QTranslator> translator, const QString& name, const QString& folder) {
        if (!translator->load(name + u'_' + inUse.code, folder)) return;
        QCoreApplication::installTranslator(translator.get());
        inUse.translators.push_back(std::move(translator));
    };
    const QString carried = u":/languages"_s;
    if (where == Shown::OnScreens) {
        // What Qt's own boxes say: some of our languages it lacks, and we bring it.
        install(std::make_unique<QTranslator>(), u"qtbase"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        install(std::make_unique<QTranslator>(), u"qt"_s, carried);
    }
    install(std::make_unique<PartOfTexts>(where), u"velton"_s, carried);
}

QString LanguageOf(Shown where) {
    return InUseFor(where).code;
}

void UseLanguageOf(const QString& registerFolder) {
    try {
        const auto value = IniFile::Read(registerFolder + u"/velton.ini"_s).Find(u"language"_s, u"screens"_s);
        if (value) UseLanguage(Shown::OnScreens, value->text);
    } catch (const FileError&) {
        // It is told where it is read for what else it holds.
    }
}

}  // namespace values
