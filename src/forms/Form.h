#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWidget>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>

#include "forms/Keypad.h"
#include "forms/ListView.h"
#include "forms/Program.h"

class QTimer;

namespace forms {

// A key and what it does: press a button (as a click does, so a disabled one does nothing) or run a handler.
struct KeyBinding {
    KeyBinding(Qt::Key key, QAbstractButton* button) : key(key), button(button) {}
    KeyBinding(Qt::Key key, std::function<void()> action) : key(key), action(std::move(action)) {}
    Qt::Key key;
    QAbstractButton* button = nullptr;
    std::function<void()> action;
};

enum class OnFocus { SelectAll, KeepCaret };

// A screen: a Designer form and a class derived from this one.
//
// Its life: construct, set public members, Load() (runs Form_Load once), Show() or ShowModal() (which load it when that
// has not happened), Form_Activate each time it comes to the front, Unload() (Form_Unload may refuse). A form shown
// with Open<T>() deletes itself after unloading.
class Form : public QWidget {
    Q_OBJECT

public:
    explicit Form(QWidget* parent = nullptr);
    ~Form() override;

    void Load();
    void Show();
    // Blocks until the form is unloaded. Throws on what Form_Load throws, and ProgramEnds when the program ended
    // meanwhile.
    void ShowModal();
    // False when the form refused.
    bool Unload();
    bool IsLoaded() const { return loaded_; }
    // The form's own caption: title of most of its messages.
    QString Caption() const { return windowTitle(); }

protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    // Sees each key before the control that has the focus; true swallows it.
    virtual bool Form_KeyDown(QKeyEvent& key);
    // False refuses the unload.
    virtual bool Form_Unload() { return true; }

    // --- Behaviours, one line each at the head of a screen.

    // Keys of the whole form, whichever control has the focus.
    void FunctionKeys(std::initializer_list<KeyBinding> keys);
    // Keys within one control, after the form's own.
    void ControlKeys(QWidget* control, std::initializer_list<KeyBinding> keys);
    // Keys of a list that has rows; on an empty list the keys do nothing.
    void ListKeys(ListView* list, std::initializer_list<KeyBinding> keys);
    // Yellow with the text selected on getting the focus, white on leaving.
    void HighlightOnFocus(std::initializer_list<QWidget*> boxes, OnFocus what = OnFocus::SelectAll);
    // Digits and Backspace pass, "." and "," become the user's decimal separator, anything else typed is swallowed but
    // for `also` (for instance "-"). Keys that type nothing (arrows, Tab, Enter, Delete) are not touched.
    void NumericKeys(std::initializer_list<QLineEdit*> boxes, const QString& also = {});
    // Enter moves on as the Tab key does: in the boxes given, or anywhere on the form (but not on buttons' clicks).
    void EnterMovesOn(std::initializer_list<QWidget*> boxes);
    void EnterMovesOn();
    // A tap brings the keypad (forms/Keypad.h); boxes under NumericKeys and for passwords have it without being told.
    void Keypad(std::initializer_list<QWidget*> boxes, KeypadKeys keys = KeypadKeys::Number);
    // Texts that the keypad of a box offers as a whole.
    void KeypadOffers(QLineEdit* box, std::function<QStringList()> offers);
    // What the keypad must not cover, wherever its box is.
    void KeypadSpares(std::initializer_list<QWidget*> controls);
    // Figures that take a smaller type when they would not fit their box.
    void ShrinkFigures(std::initializer_list<QLineEdit*> boxes);
    // A store error that nobody traps ends the process on this screen.
    void StoreErrorsEndProgram() { fatal_ = true; }

    // --- Connections. Each handler runs under Run(), which reports what it did not trap.

    template <typename Screen>
    void On(QAbstractButton* button, void (Screen::*handler)()) {
        connect(button, &QAbstractButton::clicked, this, Guarded(handler));
    }
    template <typename Screen>
    void On(QAction* action, void (Screen::*handler)()) {
        connect(action, &QAction::triggered, this, Guarded(handler));
    }
    template <typename Screen>
    void OnChange(QLineEdit* box, void (Screen::*handler)()) {
        connect(box, &QLineEdit::textChanged, this, Guarded(handler));
    }
    template <typename Screen>
    void OnChange(QComboBox* box, void (Screen::*handler)()) {
        connect(box, &QComboBox::currentTextChanged, this, Guarded(handler));
    }
    // A choice in the list, of the entry shown already too; a program's own choice counts as one.
    template <typename Screen>
    void OnChoice(QComboBox* box, void (Screen::*handler)()) {
        WatchChoice(box, Guarded(handler));
    }
    // The control lost the focus within the program (not: another window or a menu came to the front).
    template <typename Screen>
    void OnLostFocus(QWidget* control, void (Screen::*handler)()) {
        WatchFocus(control, Guarded(handler));
    }
    // A mouse button was released over a control (for lists: anywhere over the rows' area).
    template <typename Screen>
    void OnMouseUp(QWidget* control, Qt::MouseButton button, void (Screen::*handler)()) {
        WatchMouse(control, button, Guarded(handler));
    }
    // Double click in a list that has a selected row, wherever among or below the rows.
    template <typename Screen>
    void OnDoubleClick(ListView* list, void (Screen::*handler)()) {
        connect(list, &ListView::DoubleClicked, this, Guarded(handler));
    }
    template <typename Screen>
    void OnTimer(QTimer* timer, void (Screen::*handler)()) {
        ConnectTimer(timer, Guarded(handler));
    }

    // A handler of this screen as a function that reports what it does not trap; also for KeyBinding.
    template <typename Screen>
    std::function<void()> Guarded(void (Screen::*handler)()) {
        return [this, handler] { Run([&] { (static_cast<Screen*>(this)->*handler)(); }); };
    }
    void Run(const std::function<void()>& handler);

    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;

Q_SIGNALS:
    // The form has left the screen for good.
    void Unloaded();

private:
    friend class KeyDispatcher;
    friend class KeypadHost;
    template <typename T, typename... Arguments>
    friend T* Open(Arguments&&... arguments);
    friend void DropLoadedForms();

    // What a box of whichever form asks for, and what the form around it spares.
    static std::optional<KeypadWish> KeypadWishOf(const QWidget* box);
    static QList<QWidget*> SparedByKeypad(const QWidget* box);

    void WatchFocus(QWidget* control, std::function<void()> lost);
    void WatchMouse(QWidget* control, Qt::MouseButton button, std::function<void()> handler);
    void WatchChoice(QComboBox* box, const std::function<void()>& handler);
    void ConnectTimer(QTimer* timer, std::function<void()> handler);

    void Present();
    void ComeToFront();
    // Takes the form off the screen and out of the list of loaded forms.
    void Leave();

    struct Behaviours;
    std::unique_ptr<Behaviours> behaviours_;
    bool loaded_ = false;
    bool fatal_ = false;
    bool deletesItself_ = false;
};

// The forms that are loaded, in the order in which they were.
const QList<Form*>& LoadedForms();
bool IsFormLoaded(const Form* form);
Form* FindForm(QStringView className);
// Takes every loaded form off without asking it: for tests, after a program has ended.
void DropLoadedForms();

// A new form that lives until it is unloaded.
template <typename T, typename... Arguments>
T* Open(Arguments&&... arguments) {
    auto* form = new T(std::forward<Arguments>(arguments)...);
    form->deletesItself_ = true;
    return form;
}

}  // namespace forms
