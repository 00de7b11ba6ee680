#include "screens/Palette.h"

#include <QHash>
#include <algorithm>
#include <limits>

namespace screens {

namespace {

constexpr qsizetype MostColours = 256;
constexpr qsizetype ByNumber = 192;

struct Colour {
    QRgb rgb = 0;
    int pixels = 0;
    int distance = std::numeric_limits<int>::max();  // from the nearest of those that are chosen
};

std::vector<Colour> ColoursOf(const QImage& picture) {
    QHash<QRgb, int> pixels;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* pixel = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        const auto* end = pixel + picture.width();
        // In runs of one colour, of which a screen has long ones.
        while (pixel != end) {
            const auto* next = std::find_if(pixel, end, [pixel](QRgb other) { return other != *pixel; });
            pixels[*pixel] += static_cast<int>(next - pixel);
            pixel = next;
        }
    }
    std::vector<Colour> colours;
    for (auto colour = pixels.cbegin(); colour != pixels.cend(); ++colour)
        colours.push_back({colour.key(), colour.value()});
    std::ranges::sort(colours, [](const Colour& a, const Colour& b) {
        return a.pixels != b.pixels ? a.pixels > b.pixels : a.rgb < b.rgb;
    });
    return colours;
}

int Distance(QRgb a, QRgb b) {
    const int red = qRed(a) - qRed(b), green = qGreen(a) - qGreen(b), blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

}  // namespace

QList<QRgb> PaletteOf(const QImage& picture) {
    std::vector<Colour> colours = ColoursOf(picture);
    QList<QRgb> palette;
    const auto choose = [&](QRgb chosen) {
        palette << chosen;
        for (Colour& colour : colours) colour.distance = std::min(colour.distance, Distance(colour.rgb, chosen));
    };
    for (const Colour& colour : colours)
        if (palette.size() < ByNumber) choose(colour.rgb);
    while (palette.size() < MostColours) {
        const auto farthest = std::ranges::max_element(colours, {}, &Colour::distance);
        if (farthest == colours.end() || farthest->distance == 0) break;
        choose(farthest->rgb);
    }
    return palette;
}

}  // namespace screens
