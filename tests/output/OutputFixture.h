#pragma once

#include <gtest/gtest.h>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "output/Channel.h"
#include "output/Folder.h"
#include "output/PagePrinter.h"
#include "support/ErrorOf.h"
#include "support/Files.h"
#include "values/Locale.h"

// A program folder of its own for each test.
class OutputFixture : public testing::Test {
protected:
    OutputFixture() {
        output::SetProgramFolder(folder_.path());
        values::SetUserLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    }
    ~OutputFixture() override {
        output::Channel1().Abandon();
        output::ThePagePrinter().Abandon();
        output::SetProgramFolder({});
    }

    QString Path(const QString& name) const { return folder_.filePath(name); }
    bool Exists(const QString& name) const { return QFileInfo::exists(Path(name)); }

    QByteArray Read(const QString& name) const {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }
    void Write(const QString& name, const QByteArray& bytes) const { drivers::WriteFile(Path(name), bytes); }
    void SetPorts(const QByteArray& lines) const { Write(QStringLiteral("ports.ini"), "[ports]\n" + lines); }

private:
    QTemporaryDir folder_;
};
