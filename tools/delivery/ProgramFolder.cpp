#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <filesystem>

#include "delivery/Delivery.h"
#include "store/Creation.h"
#include "store/StorePath.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace delivery {

namespace {

const auto Program = u"velton"_s;
constexpr auto OwnerAlone = QFile::ReadOwner | QFile::WriteOwner;
const auto StoreIni = u"store.ini"_s;
const auto PortsIni = "[ports]\nlpt1=file:lpt1.prn\nlpt2=file:lpt2.prn\n"_ba;

// Brings finished files into a folder and, unless Keep was called, takes them and the folders it made away again.
class Placing {
public:
    explicit Placing(const QString& folder) : folder_(folder) { MakeFolder(folder); }
    ~Placing() {
        for (auto path = made_.crbegin(); path != made_.crend(); ++path)
            QFileInfo(*path).isDir() ? QDir().rmdir(*path) : QFile::remove(*path);
    }
    Placing(const Placing&) = delete;
    Placing& operator=(const Placing&) = delete;

    void MakeFolder(const QString& path) {
        if (QDir(path).exists()) return;
        const QString parent = QFileInfo(path).absolutePath();
        if (parent != path) MakeFolder(parent);
        if (!QDir().mkdir(path, OwnerAlone | QFile::ExeOwner))
            throw values::FileError(values::PathFault, u"Cannot make the folder '%1'."_s.arg(path));
        made_.append(path);
    }

    bool Has(const QString& name) const { return QFileInfo::exists(folder_ + u'/' + name); }

    // Never onto a file that is there.
    void Move(const QString& from, const QString& name) {
        const QString target = folder_ + u'/' + name;
        MakeFolder(QFileInfo(target).absolutePath());
        QFile file(from);
        if (!file.rename(target)) throw values::FileError(file, values::FileWork::Writing, target);
        made_.append(target);
    }

    // A program that is running may be replaced, but not overwritten.
    void Replace(const QString& from, const QString& name) {
        const QString target = folder_ + u'/' + name;
        const bool isNew = !QFileInfo::exists(target);
        std::error_code error;
        std::filesystem::rename(from.toStdU16String(), target.toStdU16String(), error);
        if (error)
            throw values::FileError(values::PathFault,
                                    u"Cannot make '%1': %2"_s.arg(target, QString::fromStdString(error.message())));
        if (isNew) made_.append(target);
    }

    void Keep() { made_.clear(); }

private:
    QString folder_;
    QStringList made_;
};

// Where everything is made ready: inside the folder, on the same disk. It is locked for as long as somebody works in
// it, so that what a killed one left there can be told and is cleared away.
class Workshop {
public:
    explicit Workshop(const QString& folder) : place_(folder + u'/' + Name + u"XXXXXX"_s) {
        ClearAbandoned(folder);
        if (!place_.isValid())
            throw values::FileError(values::PathFault, u"Cannot write to '%1': %2"_s.arg(folder, place_.errorString()));
        lock_ = Locked(place_.path());
    }
    ~Workshop() {
        place_.remove();
        if (lock_ >= 0) ::close(lock_);
    }
    Workshop(const Workshop&) = delete;
    Workshop& operator=(const Workshop&) = delete;

    QString Path() const { return place_.path(); }
    QString FilePath(const QString& name) const { return place_.filePath(name); }

private:
    static constexpr auto Name = "velton-new-"_L1;

    // A descriptor that holds the lock of a folder; -1 when another process has it.
    static int Locked(const QString& path) {
        const int folder = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (folder >= 0 && ::flock(folder, LOCK_EX | LOCK_NB) == 0) return folder;
        if (folder >= 0) ::close(folder);
        return -1;
    }

    void ClearAbandoned(const QString& folder) const {
        for (const QString& name : QDir(folder).entryList({Name + u"??????"_s}, QDir::Dirs | QDir::NoSymLinks)) {
            QDir old(folder + u'/' + name);
            if (old.path() == place_.path()) continue;
            const int lock = Locked(old.path());
            if (lock < 0) continue;
            old.removeRecursively();
            ::close(lock);
        }
    }

    QTemporaryDir place_;
    int lock_ = -1;
};

// The log of a store that was lost would be taken for that of the new one.
void RefuseStores(const QString& folder) {
    for (const QString& name : {QString(store::MainFile), QString(store::OptionsFile)})
        for (const QString& rest : {u""_s, u"-wal"_s, u"-shm"_s, u"-journal"_s})
            if (QFileInfo::exists(folder + u'/' + name + rest))
                throw values::FileError(store::FileExists,
                                        u"The folder '%1' holds a store already: %2"_s.arg(folder, name + rest));
}

void WriteFile(const QString& path, const QByteArray& content) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly, OwnerAlone) || file.write(content) != content.size() || !file.flush())
        throw values::FileError(file, values::FileWork::Writing);
}

// A register that joins the store of a server finds all rows there.
bool Joins(const store::Place& main, bool withDemo) {
    if (!main.IsServer() || withDemo) return false;
    try {
        store::Database::Open(main, store::MainSchema());
        return true;
    } catch (const store::StoreError& error) {
        if (error.Number() != store::FileNotFound) throw;
        return false;
    }
}

void MakeStores(const QString& folder, const store::Place& mainPlace, bool withDemo) {
    store::Creation options(store::OptionsPlace(folder), store::OptionsSchema());
    FillOptions(options.Store());
    if (Joins(mainPlace, withDemo)) return options.Finish();
    store::Creation main(mainPlace, store::MainSchema());
    FillMain(main.Store());
    if (withDemo) FillDemo(main.Store(), options.Store());
    options.Finish();
    main.Finish();
}

// Pictures and help texts, as they lie in this program.
QStringList WriteSupplies(const QString& folder) {
    const QString root = u":/delivery/folder/"_s;
    QStringList names;
    for (QDirIterator files(root, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        QFile supply(files.next());
        if (!supply.open(QIODevice::ReadOnly)) throw values::FileError(supply, values::FileWork::Reading);
        names.append(supply.fileName().mid(root.size()));
        WriteFile(folder + u'/' + names.last(), supply.readAll());
    }
    WriteFile(folder + u"/ports.ini"_s, PortsIni);
    return names << u"ports.ini"_s;
}

// The copy is as old as the program, so that a later one is known to be newer, whenever the copy was made.
void CopyProgram(const QString& from, const QString& folder) {
    const QString target = folder + u'/' + Program;
    QFile program(from);
    if (!program.copy(target) || !QFile::setPermissions(target, OwnerAlone | QFile::ExeOwner))
        throw values::FileError(program, values::FileWork::Copying);
    const auto time = QFileInfo(from).lastModified();
    QFile copy(target);
    if (!copy.open(QIODevice::ReadOnly) || !copy.setFileTime(time, QFileDevice::FileModificationTime))
        throw values::FileError(copy, values::FileWork::Writing);
}

}  // namespace

void MakeProgramFolder(const QString& folder, const Register& what) {
    const QString target = QDir::cleanPath(QDir().absoluteFilePath(folder));
    RefuseStores(target);
    const bool withProgram = !what.program.isEmpty();
    if (withProgram && !QFileInfo(what.program).isFile())
        throw values::FileError(values::FileMissing, u"The program is missing: '%1'"_s.arg(what.program));

    Placing placing(target);
    // Put in place only when all of it is there.
    const Workshop workshop(target);
    const store::Place main =
        what.server.isEmpty() ? store::MainPlace(workshop.Path()) : store::Place::Server(what.server);
    QStringList supplies = WriteSupplies(workshop.Path());
    if (main.IsServer()) {
        if (placing.Has(StoreIni))
            throw values::FileError(store::FileExists, u"The folder '%1' has a store.ini already."_s.arg(target));
        WriteFile(workshop.FilePath(StoreIni), "[main]\nurl=" + what.server.toUtf8() + '\n');
        supplies += StoreIni;
    }
    if (withProgram) CopyProgram(what.program, workshop.Path());
    MakeStores(workshop.Path(), main, what.withDemo);

    for (const QString& name : supplies)
        if (!placing.Has(name)) placing.Move(workshop.FilePath(name), name);
    if (withProgram) placing.Replace(workshop.FilePath(Program), Program);
    placing.Move(workshop.FilePath(store::OptionsFile), store::OptionsFile);
    if (!main.IsServer()) placing.Move(workshop.FilePath(store::MainFile), store::MainFile);
    placing.Keep();
}

}  // namespace delivery
