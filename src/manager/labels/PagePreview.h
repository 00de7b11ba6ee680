#pragma once

#include <QWidget>
#include <memory>

#include "manager/labels/PrintedPages.h"

namespace manager {

// A page as it will be printed, as large as there is room.
class PagePreview : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int pages READ Count)

public:
    explicit PagePreview(QWidget* parent = nullptr);

    // Stays at the page where there still is one of this number.
    void Show(std::shared_ptr<const PrintedPages> pages);
    void Turn(int pages);
    int Page() const { return page_; }
    int Count() const { return pages_ ? pages_->Count() : 0; }

Q_SIGNALS:
    // Where on the paper, in millimetres.
    void Pressed(QPointF place);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QRectF PaperPlace() const;

    std::shared_ptr<const PrintedPages> pages_;
    int page_ = 0;
};

}  // namespace manager
