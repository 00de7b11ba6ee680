#pragma once

#include <QFrame>
#include <functional>

#include "output/Ports.h"
#include "output/PrinterStatus.h"
#include "ui_PortPanel.h"

namespace manager {

// A printer port: what stands behind it, and what can be tried with it. Its controls bear its number: cboPort1.
class PortPanel : public QFrame {
    Q_OBJECT

public:
    // `family` gives the command set that is chosen.
    PortPanel(int number, std::function<output::PrinterFamily()> family);

    void Fill(const QStringList& found);
    // What stands in the boxes.
    output::PortEntry Entry() const;

private:
    void Test();
    void OpenDrawer();
    void Cut();
    void Ask();
    // Does something with the open port, and tells in the panel how it went.
    void Try(const std::function<QString()>& work);

    const int number_;
    const std::function<output::PrinterFamily()> family_;
    Ui::PortPanel ui;
};

}  // namespace manager
