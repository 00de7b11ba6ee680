#pragma once

#include <QLineEdit>
#include <QPushButton>

#include "forms/ListView.h"
#include "manager/setup/SetupStep.h"
#include "store/Database.h"

namespace manager {

// A short table, listed whole above the boxes of the row that is chosen. What is stored with no row chosen is a new
// one.
class RowsStep : public SetupStep {
    Q_OBJECT

public:
    void Fill() override;
    bool Store() override;

protected:
    // A box and the field that it shows.
    struct Box {
        QString field;
        QWidget* box;     // a QLineEdit, or a QComboBox that can't be typed in
        QString missing;  // what an empty one is told as; none where it may be empty
        QString format;   // of a number
    };
    struct Facts {
        forms::ListView* list;  // its columns are the fields of the first boxes
        QList<Box> boxes;       // that of the key first, a QLineEdit
        QPushButton* add;
        QPushButton* remove;
        QString query;           // of all rows
        QString rowQuery;        // of the row with the key %1, which comes quoted
        QString duplicate;       // what a key that is taken is told as
        QString isProtected;     // why rows stay that are marked as delivered; none where the table has no such mark
        QString question;        // whether to remove %1
        bool isKeyFree = false;  // the key may be another as long as nothing keeps the row
    };
    void Begin(const Facts& facts);

    // Brings the boxes into a row.
    virtual void Write(store::Recordset& row) const;
    // Why the boxes, which are filled, cannot be stored, and the box that is to blame; empty when they can.
    virtual std::pair<QString, QWidget*> Fault() const = 0;
    // Why a row has to stay; empty when it need not.
    virtual QString WhyItStays(store::Recordset& row) const = 0;

private:
    QLineEdit* KeyBox() const;
    QStringList CellsOf(store::Recordset& row) const;
    std::pair<QString, QWidget*> Missing() const;
    store::Recordset OpenRow(const QString& key) const;
    // Lists all rows, and shows the one with this key, or else the first.
    void FillList(const QString& key);
    void Select(int row);
    void ShowRow(const QString& key);
    void Choose();
    void New();
    void Remove();
    // Says so.
    bool Refuse(const std::pair<QString, QWidget*>& fault);

    Facts facts_;
    QString key_;         // of the row in the boxes
    bool isNew_ = false;  // they hold one that is not stored yet
    bool isFilling_ = false;
};

}  // namespace manager
