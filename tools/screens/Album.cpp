#include "screens/Album.h"

#include <QDir>
#include <stdexcept>

#include "forms/Form.h"
#include "screens/Faults.h"
#include "screens/Picture.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// Every class of a screen, as the headers of src declare them.
constexpr const char16_t* AllScreens[] = {
#include "AllScreens.inc"
};

[[noreturn]] void GiveUp(const QString& words) {
    throw std::runtime_error(words.toStdString());
}

}  // namespace

Album::Album(const QString& folder) : folder_(folder) {
    if (!QDir().mkpath(folder)) GiveUp(u"The folder %1 can't be made."_s.arg(folder));
}

void Album::Add(QWidget& window, const QString& name) {
    if (names_.contains(name)) GiveUp(u"Two pictures have the name %1."_s.arg(name));
    names_ << name;
    screens_ << window.objectName();
    for (const auto* form : window.findChildren<forms::Form*>())
        if (form->isVisible()) screens_ << form->objectName();
    const QImage picture = PictureOf(window);
    for (const QString& fault : FaultsOf(window))
        if (!faults_.contains(fault)) faults_ << fault;
    const QString path = u"%1/%2.png"_s.arg(folder_, name);
    if (!SavePicture(picture, path)) GiveUp(u"The picture %1 can't be written."_s.arg(path));
}

QStringList Album::MissingScreens() const {
    QStringList missing;
    for (const char16_t* screen : AllScreens)
        if (const QString name = QString::fromUtf16(screen); !screens_.contains(name)) missing << name;
    return missing;
}

}  // namespace screens
