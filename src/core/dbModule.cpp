#include "core/dbModule.h"

#include <QFileInfo>
#include <algorithm>

#include "core/CoreWords.h"
#include "forms/LongWork.h"
#include "output/Channel.h"
#include "output/CodePage.h"
#include "output/Folder.h"
#include "output/PagePrinter.h"
#include "store/StorePath.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

const auto LastGrupniQuery = u"SELECT Max(Grupni) AS zadnji FROM Sales"_s;

std::unique_ptr<store::Database> mainStore;
std::unique_ptr<store::Patience> mainPatience;
std::unique_ptr<store::Database> optionsStore;
bool isMainOnServer = false;

std::function<bool()> BeginWait() {
    const auto notice = std::make_shared<forms::LongWork>(WaitsForMainStore());
    return [notice] { return notice->GoesOn(); };
}

store::Database& Opened(const std::unique_ptr<store::Database>& database) {
    if (!database) throw store::StoreError(values::NoObject, CoreWords::tr("The store is not open."));
    return *database;
}

}  // namespace

void OpenOptionsStore() {
    optionsStore = store::OpenOptions(output::ProgramFolder());
}

void OpenMainStore() {
    mainPatience.reset();
    const store::Place place = store::MainPlace(output::ProgramFolder());
    isMainOnServer = place.IsServer();
    mainStore = store::Database::Open(place, store::MainSchema());
}

bool IsMainStoreOnServer() {
    return isMainOnServer;
}

QString WaitsForMainStore() {
    return isMainOnServer
               ? CoreWords::tr("Waiting for the server of the store, or for another register that is writing there.")
               : CoreWords::tr("Waiting for another register, which is writing to the store.");
}

void ShowWaitsOfMainStore() {
    mainPatience = std::make_unique<store::Patience>(MainStore(), BeginWait);
}

store::Database& OptionsStore() {
    return Opened(optionsStore);
}

store::Database& MainStore() {
    return Opened(mainStore);
}

bool IsMainStoreOpen() {
    return mainStore != nullptr;
}

void CloseStores() {
    mainPatience.reset();
    mainStore.reset();
    optionsStore.reset();
}

void ExecuteSql(const QString& text) {
    MainStore().Execute(text);
}

QString Quoted(QString text) {
    return u'\'' + text.replace(u'\'', u"''"_s) + u'\'';
}

QString ProperCase(const QString& text) {
    if (text.isEmpty()) return {};
    QString result = text;
    const auto raise = [&](qsizetype at) {
        if (at < result.size()) result[at] = result[at].toUpper();
    };
    raise(0);
    for (qsizetype i = 0; i + 1 < result.size(); ++i) {
        if (result[i] == u'\r' && result[i + 1] == u'\n') raise(i + 2);
        if (result[i] == u' ') raise(i + 1);
    }
    return result;
}

void PrintToChannel(const QString& mode, const QString& line) {
    if (mode == u"1" || mode == u"2") output::Channel1().WriteLine(line);
    if (mode == u"3") output::ThePagePrinter().PrintLine(line);
}

void FeedBlankLines(qint16 count) {
    for (int i = 0; i < count; ++i) output::Channel1().WriteLine({});
}

QString PadLeft(qint32 width, const QString& text) {
    return QString(std::max(0, width - output::Columns(text)), u' ') + text;
}

QString PadRight(qint32 width, const QString& text) {
    if (width < 0) throw values::Error(values::InvalidCall, CoreWords::tr("A text does not fit its line."));
    const QString cut = output::FirstColumns(text, width);
    return cut + QString(width - output::Columns(cut), u' ');
}

bool FileExists(const QString& path) {
    const QFileInfo file(path);
    return file.exists() && !file.isDir();
}

std::optional<qint16> LastEndReport() {
    auto rs = MainStore().OpenRecordset(LastGrupniQuery);
    rs.MoveFirst();
    if (rs[u"zadnji"].IsNull()) return std::nullopt;
    return values::CInt16(rs[u"zadnji"].Double());
}

qint16 LastEndReportNumber() {
    return LastEndReport().value_or(0);
}
