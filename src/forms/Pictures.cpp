#include "forms/Pictures.h"

#include <QCache>
#include <QDateTime>
#include <QFileInfo>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <optional>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr int Thumbnail = 208;  // the largest side: that of the frame in the entry of a product
constexpr qint64 LargestFile = 16 << 20;
constexpr qint64 MostPoints = 4'000'000;
constexpr qint64 MostPointsOfJpeg = 16'000'000;
constexpr int LargestImageInMegabytes = 64;
constexpr int CacheInKilobytes = 64 << 10;  // room for a picture on each button of the click table

struct Reader : QImageReader {
    explicit Reader(const QString& path) : QImageReader(path) {
        setDecideFormatFromContent(true);
        setAutoTransform(true);
        setAllocationLimit(LargestImageInMegabytes);
    }

    // All but JPEG are decoded whole, whatever the size that is asked for.
    bool IsLight() const {
        if (!canRead() || QFileInfo(fileName()).size() > LargestFile) return false;
        const QSize whole = size();
        const qint64 points = qint64{whole.width()} * whole.height();
        return points <= (format() == "jpeg" ? MostPointsOfJpeg : MostPoints);
    }

    QPixmap Read() {
        if (!IsLight()) return {};
        const QSize whole = size();
        if (whole.width() > Thumbnail || whole.height() > Thumbnail)
            setScaledSize(whole.scaled(Thumbnail, Thumbnail, Qt::KeepAspectRatio).expandedTo({1, 1}));
        return QPixmap::fromImage(read());
    }
};

// The same receipt picture comes up with each invoice, the same thumbnails with each look at the table.
QPixmap Cached(const QString& path) {
    static QCache<QString, QPixmap> cache(CacheInKilobytes);
    const QFileInfo file(path);
    const QString key =
        u"%1|%2|%3"_s.arg(file.absoluteFilePath()).arg(file.size()).arg(file.lastModified().toMSecsSinceEpoch());
    if (QPixmap* known = cache.object(key)) return *known;
    QPixmap picture = Reader(path).Read();
    cache.insert(key, new QPixmap(picture), 1 + picture.width() * picture.height() * 4 / 1024);
    return picture;
}

class LateIcon : public QIconEngine {
public:
    explicit LateIcon(const QString& path) : path_(path) {}

    QIconEngine* clone() const override { return new LateIcon(*this); }
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        Icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return Icon().pixmap(size, 1, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return Icon().actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override {
        return Icon().availableSizes(mode, state);
    }
    bool isNull() override { return icon_ && icon_->isNull(); }

private:
    const QIcon& Icon() {
        if (!icon_) icon_ = QIcon(ReadPicture(path_));
        return *icon_;
    }

    QString path_;
    std::optional<QIcon> icon_;
};

}  // namespace

QPixmap ReadPicture(const QString& path) {
    return Cached(path);
}

QIcon PictureIcon(const QString& path) {
    return Reader(path).IsLight() ? QIcon(new LateIcon(path)) : QIcon();
}

QPixmap Drawn(int size, const std::function<void(QPainter&)>& draw) {
    constexpr qreal density = 2;
    QPixmap pixmap(QSize(size, size) * density);
    pixmap.setDevicePixelRatio(density);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    return pixmap;
}

}  // namespace forms
