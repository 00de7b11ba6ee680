#include "forms/Form.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "forms/Behaviours.h"
#include "forms/FixedSizes.h"
#include "forms/Frame.h"
#include "forms/KeyDispatcher.h"
#include "forms/OneLine.h"
#include "forms/OptionGroups.h"
#include "forms/ShrinkToFit.h"
#include "forms/SpokenNames.h"
#include "forms/TextView.h"
#include "forms/Theme.h"
#include "forms/WindowPlace.h"

namespace forms {

namespace {

QList<Form*> loadedForms;
// The form in front; message boxes and file dialogs above it change nothing about that.
QPointer<Form> frontForm;

QRect RoomAround(const QWidget* window) {
    if (window && window->isVisible()) return window->frameGeometry();
    return QGuiApplication::primaryScreen()->availableGeometry();
}

// What a window manager puts around a window at least; before it is first shown its own measure isn't known.
constexpr QMargins UsualFrame(4, 30, 4, 4);
// Of a list, beyond this many times the width and height that it was designed for nothing more is to be seen.
constexpr double LargestList = 1.6;

bool HasListOrText(const QWidget& form) {
    const auto areas = form.findChildren<QAbstractScrollArea*>();
    return std::ranges::any_of(areas, [](const QAbstractScrollArea* area) {
        const bool isContent = qobject_cast<const ListView*>(area) || qobject_cast<const TextView*>(area);
        return isContent && area->maximumHeight() == QWIDGETSIZE_MAX;
    });
}

// As designed, in the step of type in use; lists and long texts take the room that there is.
QSize FirstSize(const QWidget& form, QSize room) {
    const QSize designed = QSize(Scaled(form.width()), Scaled(form.height())).expandedTo(form.sizeHint());
    if (!HasListOrText(form)) return designed;
    return designed.expandedTo((designed * LargestList).boundedTo(room));
}

void CentreOver(QWidget* form, const QWidget* window) {
    const QMargins frame = UsualFrame | form->windowHandle()->frameMargins();
    form->setGeometry(WindowPlace(form->size().expandedTo(form->minimumSizeHint()), RoomAround(window).center(), frame,
                                  form->screen()->availableGeometry()));
}

}  // namespace

Form::Form(QWidget* parent) : QWidget(parent), behaviours_(std::make_unique<Behaviours>(*this)) {
    KeyDispatcher::Install();
    if (!parent) setWindowFlags(Qt::Dialog);
}

Form::~Form() {
    loadedForms.removeOne(this);
}

void Form::Load() {
    if (loaded_) return;
    if (objectName().isEmpty()) setObjectName(QString::fromLatin1(metaObject()->className()));
    loaded_ = true;
    loadedForms.append(this);
    for (auto* box : findChildren<QLineEdit*>()) KeepToOneLine(box);
    KeepFocusOnChosenOptions(*this);
    ScaleFixedSizes(*this);
    NameForReaders(*this);
    try {
        Form_Load();
    } catch (...) {
        const auto error = std::current_exception();
        Leave();
        if (deletesItself_) deleteLater();
        // On a screen that ends the process on errors this one is no business of the handler that opens it.
        if (fatal_) Run([&] { std::rethrow_exception(error); });
        if (ProgramIsEnding()) throw ProgramEnds{};
        throw;
    }
}

void Form::Show() {
    if (ProgramIsEnding()) throw ProgramEnds{};
    Load();
    if (!loaded_) return;
    setWindowModality(Qt::NonModal);
    Present();
}

void Form::ShowModal() {
    if (ProgramIsEnding()) throw ProgramEnds{};
    Load();
    if (!loaded_) return;
    if (isVisible()) hide();
    setWindowModality(Qt::ApplicationModal);

    QEventLoop loop;
    behaviours_->modalLoop = &loop;
    const QPointer<Form> alive = this;
    Present();
    if (alive && loaded_) loop.exec(QEventLoop::DialogExec);

    const bool unloaded = !alive || !loaded_;
    if (alive) {
        behaviours_->modalLoop = nullptr;
        // Only now, so that the caller may still look at what the form leaves behind.
        if (deletesItself_) deleteLater();
    }
    if (unloaded && !ProgramIsEnding()) return;
    if (!unloaded) Leave();
    EndProgram(ProgramExitCode());
}

bool Form::Unload() {
    if (!loaded_ || behaviours_->unloading) return true;
    behaviours_->unloading = true;
    bool agreed = true;
    try {
        agreed = Form_Unload();
    } catch (...) {
        behaviours_->unloading = false;
        throw;
    }
    behaviours_->unloading = false;
    if (!agreed) return false;

    const bool wasInFront = isActiveWindow();
    Leave();
    if (wasInFront && behaviours_->cameFrom) behaviours_->cameFrom->GiveBack();
    behaviours_->cameFrom.reset();
    if (behaviours_->modalLoop)
        behaviours_->modalLoop->quit();
    else if (deletesItself_)
        deleteLater();
    return true;
}

void Form::Leave() {
    loaded_ = false;
    loadedForms.removeOne(this);
    if (frontForm == this) frontForm = nullptr;
    behaviours_->focused = nullptr;
    behaviours_->below.reset();
    hide();
    Q_EMIT Unloaded();
    if (!qobject_cast<Frame*>(window())) return;
    // The frame would go on pointing at a control of ours that it believes to have the focus.
    if (QWidget* last = window()->focusWidget(); last && isAncestorOf(last)) last->clearFocus();
    setParent(nullptr, Qt::Dialog);
}

bool Form::Form_KeyDown(QKeyEvent& key) {
    return behaviours_->FormKey(key);
}

void Form::closeEvent(QCloseEvent* event) {
    bool unloaded = false;
    Run([&] { unloaded = Unload(); });
    event->setAccepted(unloaded);
}

void Form::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!isWindow() && window()->isActiveWindow()) ComeToFront();
}

bool Form::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) ComeToFront();
    return QWidget::event(event);
}

void Form::ComeToFront() {
    if (!loaded_ || frontForm == this) return;
    frontForm = this;
    // Not from within Qt's own work on the window: the handler may open boxes.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (loaded_ && frontForm == this) Run([this] { Form_Activate(); });
        },
        Qt::QueuedConnection);
}

void Form::Present() {
    if (!isWindow()) {
        show();
        return;
    }
    QWidget* below = QApplication::activeWindow();
    if (!isVisible()) {
        if (below != this) behaviours_->cameFrom.emplace();
        if (!std::exchange(behaviours_->sized, true))
            resize(FirstSize(*this, screen()->availableGeometry().marginsRemoved(UsualFrame).size()));
        winId();
        if (below && below != this) windowHandle()->setTransientParent(below->windowHandle());
        CentreOver(this, below);
        if (isModal() && below != this) behaviours_->below.emplace(below);
    }
    show();
    raise();
    activateWindow();
    // A window that was in front when it was hidden, and has had no follower, is taken for active still.
    if (QGuiApplication::focusWindow() == windowHandle()) MakeActiveAtOnce(this);
}

void Form::ShrinkFigures(std::initializer_list<QLineEdit*> boxes) {
    for (QLineEdit* box : boxes) new ShrinkToFit(box);
}

// A handler may have given the form another caption before it failed.
void Form::Run(const std::function<void()>& handler) {
    const QPointer<const Form> alive = this;
    const QString before = Caption();
    RunTitled(
        handler, [&] { return alive ? alive->Caption() : before; }, fatal_);
}

void Form::ConnectTimer(QTimer* timer, std::function<void()> handler) {
    connect(timer, &QTimer::timeout, this, std::move(handler));
}

// The box tells of a choice once, and of one that changes the entry once more right before that. A change by the
// program has nothing behind it: its entry may be chosen later, and that counts.
void Form::WatchChoice(QComboBox* box, const std::function<void()>& handler) {
    const auto told = std::make_shared<int>(-1);
    connect(box, &QComboBox::currentIndexChanged, this, [told, handler](int entry) {
        handler();
        *told = entry;
        QMetaObject::invokeMethod(
            qApp, [told] { *told = -1; }, Qt::QueuedConnection);
    });
    connect(box, &QComboBox::activated, this, [told, handler](int entry) {
        if (std::exchange(*told, -1) != entry) handler();
    });
}

const QList<Form*>& LoadedForms() {
    return loadedForms;
}

bool IsFormLoaded(const Form* form) {
    return std::find(loadedForms.begin(), loadedForms.end(), form) != loadedForms.end();
}

Form* FindForm(QStringView className) {
    for (Form* form : loadedForms)
        if (form->objectName() == className || QString::fromLatin1(form->metaObject()->className()) == className)
            return form;
    return nullptr;
}

void DropLoadedForms() {
    const auto all = loadedForms;
    for (Form* form : all) {
        form->Leave();
        if (form->deletesItself_) form->deleteLater();
    }
}

}  // namespace forms
