#pragma once

#include <QHash>
#include <QTimer>
#include <functional>

#include "forms/Frame.h"

class QLabel;

// The main window: the frame of the sales screen, the menu, and the status bar with the running total of the period.
// It opens nothing itself: what an entry does is told to it by the program.
class mdiORVA : public forms::Frame {
    Q_OBJECT

public:
    mdiORVA();
    ~mdiORVA() override;

    // The one main window, made when it is first asked for; Discard ends it.
    static mdiORVA& Window();
    static void Discard();

    // What a menu entry does, by the entry's name. An entry without one does nothing.
    void SetEntry(const QString& name, std::function<void()> action);
    // Does what the entry does; keys of the sales screen reach some screens this way, whatever the level.
    void Choose(const QString& name);
    void SetEntryEnabled(const QString& name, bool enabled);
    // Switches entries off and on as the level of the user who logged in demands.
    void ApplyAccessLevel(const QString& accLevel);

    // Panel 5: the running total of the open period in "###,###,##0.00"; it holds the figure also while hidden.
    QString RunningTotal() const;
    void SetRunningTotal(const QString& text);
    // Panels 4 and 5.
    void ShowRunningTotal(bool visible);

    QString Caption() const { return windowTitle(); }
    // A picture of the image list, by the key of a tool bar's button.
    static QIcon Image(const QString& key, const QColor& ink);

private:
    void BuildMenu();
    void BuildStatusBar();
    void Timer1_Timer();

    QHash<QString, std::function<void()>> entries_;
    QList<QLabel*> panels_;
    QTimer* timer1_ = nullptr;
};
