#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

class QWidget;

namespace screens {

// The pictures of one tour, and which screens are on them. A picture that can't be written, and a name that was taken
// before, throw std::runtime_error.
class Album {
public:
    // Pictures go to this folder; it is made when it is missing.
    explicit Album(const QString& folder);

    void Add(QWidget& window, const QString& name);

    qsizetype Count() const { return names_.size(); }
    // The screens of the program, by class, that are on no picture.
    QStringList MissingScreens() const;
    // What its user could not read or reach on them, each once.
    const QStringList& Faults() const { return faults_; }

private:
    QString folder_;
    QSet<QString> names_;
    QSet<QString> screens_;
    QStringList faults_;
};

}  // namespace screens
