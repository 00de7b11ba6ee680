#pragma once

#include <QRect>
#include <QRectF>

namespace manager {

// What labels are measured in: the dots of a printer, each divided into parts so fine that letters and lines find their
// place between them. Bars are whole dots.
class Dots {
public:
    explicit Dots(int perInch) : perInch_(perInch), parts_((FinestPerInch + perInch - 1) / perInch) {}

    int PerInch() const { return perInch_; }
    int Parts() const { return parts_; }
    int PartsPerInch() const { return perInch_ * parts_; }

    int Of(double millimetres) const { return qRound(millimetres * PartsPerInch() / MillimetresOfAnInch); }
    double Millimetres(int parts) const { return parts * MillimetresOfAnInch / PartsPerInch(); }
    // Inside of what is given, at whole dots.
    QRect Of(const QRectF& millimetres) const {
        const QPoint corner(Up(Of(millimetres.left())), Up(Of(millimetres.top())));
        return {corner, QPoint(Down(Of(millimetres.right())) - 1, Down(Of(millimetres.bottom())) - 1)};
    }
    int Down(int parts) const { return parts / parts_ * parts_; }
    int Up(int parts) const { return Down(parts + parts_ - 1); }

private:
    static constexpr int FinestPerInch = 1200;
    static constexpr double MillimetresOfAnInch = 25.4;

    int perInch_;
    int parts_;
};

}  // namespace manager
