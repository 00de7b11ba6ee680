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
    struct Facts {
        forms::ListView* list;
        QLineEdit* first;  // the box of the key
        QPushButton* add;
        QPushButton* remove;
        QString query;      // of all rows; the first of its columns that are listed is the key
        QString rowQuery;   // of the row with the key %1, which comes quoted
        QString duplicate;  // what a key that is taken is told as
        QString isProtected;
        QString question;  // whether to remove %1
    };
    void Begin(const Facts& facts);

    virtual QStringList CellsOf(store::Recordset& row) const = 0;
    // Of the boxes: emptied, filled from a row, and written to one.
    virtual void Clear() = 0;
    virtual void Show(store::Recordset& row) = 0;
    virtual void Write(store::Recordset& row) const = 0;
    // Why the boxes cannot be stored, and the box that is to blame; empty when they can.
    virtual std::pair<QString, QWidget*> Fault() const = 0;
    // Why a row has to stay; empty when it need not.
    virtual QString WhyItStays(store::Recordset& row) const = 0;

private:
    store::Recordset OpenRow(const QString& key) const;
    // Lists all rows, and shows the one with this key, or else the first.
    void FillList(const QString& key);
    void Select(int row);
    void ShowRow(const QString& key);
    void Choose();
    void New();
    void Remove();

    Facts facts_;
    QString key_;         // of the row in the boxes
    bool isNew_ = false;  // they hold one that is not stored yet
    bool isFilling_ = false;
};

}  // namespace manager
