#pragma once

#include <gtest/gtest.h>

#include <QFile>

inline void WriteText(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

// Lines as a ribbon has them, about so many bytes of them, and "last line" behind them.
inline void WriteLongText(const QString& path, qsizetype size) {
    const QByteArray line = "Cola                 1.50     2    3.00\r\n";
    WriteText(path, line.repeated(size / line.size()) + "last line\r\n");
}
