#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QStringList>
#include <QTemporaryDir>

#include "store/Database.h"

// What one call of velton-store answered.
struct Answer {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;

    bool operator==(const Answer&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Answer& answer);

QString ToolPath();
Answer Tool(const QStringList& arguments, const QString& locale = QStringLiteral("en_US.UTF-8"));
// A shell's line, in which $TOOL is the program and $1, $2... the arguments.
Answer Shell(const QString& line, const QStringList& arguments);

inline Answer Done(const QByteArray& out = {}) {
    return {0, out, {}};
}

QByteArray ReadFile(const QString& path);
void WriteFile(const QString& path, const QByteArray& content);

// A program folder with delivered stores, without the program itself.
class ShopTest : public testing::Test {
protected:
    void SetUp() override;

    QString Path(const QString& name) const { return shop_.filePath(name); }
    Answer Sql(const QString& text) const { return Tool({QStringLiteral("sql"), folder_, text}); }
    Answer Insert(const QString& table, const QStringList& fields) const {
        return Tool(QStringList{QStringLiteral("insert"), folder_, table} + fields);
    }
    Answer Load(const QString& table, const QByteArray& lines) const;

    QTemporaryDir shop_;
    QString folder_ = shop_.filePath(QStringLiteral("shop"));
};
