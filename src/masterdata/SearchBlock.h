#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

// The search block of the list screens: the field to search in (cboView), a free text (cboTemp), whether the text may
// stand anywhere (Option1) or at the beginning (Option2), and the button that shows all rows (cmdRefresh).
class SearchBlock : public QWidget {
    Q_OBJECT

public:
    struct Captions {
        QString field;
        QString text;
        QString anywhere;
        QString fromBeginning;
    };

    explicit SearchBlock(QWidget* parent = nullptr);

    void SetCaptions(const Captions& captions);
    // A narrow one puts its parts below each other, and has no room for cmdRefresh.
    void MakeNarrow();

    // " WHERE field LIKE '*text*'", or 'text*' from the beginning; the text goes in as it stands.
    QString Condition(const QString& field) const;

    QComboBox* const cboView;
    QLineEdit* const cboTemp;
    QRadioButton* const Option1;
    QRadioButton* const Option2;
    QPushButton* const cmdRefresh;

private:
    void LayOut(bool isNarrow);

    QLabel* const lblField_;
    QLabel* const lblText_;
};
