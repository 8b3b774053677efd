#include "GaussianBlur.h"

#include <QColor>
#include <QPainter>

#include <array>
#include <cmath>
#include <vector>

namespace {

// Three box filters in a row come within 3 % of a Gaussian; these are the odd widths whose variances add up
// to it. W. M. Wells, "Efficient synthesis of Gaussian filters by cascaded uniform filters", PAMI 8(2), 1986.
std::array<int, 3> boxWidths(double radius)
{
    const double ideal = std::sqrt(12.0 * radius * radius / 3.0 + 1.0);
    int lower = static_cast<int>(std::floor(ideal));
    lower -= lower % 2 == 0 ? 1 : 0;
    const double lowerCount =
        (12.0 * radius * radius - 3.0 * lower * lower - 12.0 * lower - 9.0) / (-4.0 * lower - 4.0);
    std::array<int, 3> widths{};
    for (int i = 0; i < 3; ++i) {
        widths.at(static_cast<std::size_t>(i)) = i < std::lround(lowerCount) ? lower : lower + 2;
    }
    return widths;
}

// One line of `count` values, `stride` apart, each replaced by the mean of `width` values around it.
void boxFilter(std::vector<float> &values, std::ptrdiff_t first, int count, std::ptrdiff_t stride, int width)
{
    const int reach = width / 2;
    std::vector<float> line(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        line[static_cast<std::size_t>(i)] = values[static_cast<std::size_t>(first + i * stride)];
    }
    const auto at = [&](int i) { return i < 0 || i >= count ? 0.0F : line[static_cast<std::size_t>(i)]; };
    float sum = 0.0F;
    for (int i = -reach; i <= reach; ++i) {
        sum += at(i);
    }
    for (int i = 0; i < count; ++i) {
        values[static_cast<std::size_t>(first + i * stride)] = sum / static_cast<float>(width);
        sum += at(i + reach + 1) - at(i - reach);
    }
}

} // namespace

double GaussianBlur::extent(double radius)
{
    return std::ceil(3.0 * radius);
}

QImage GaussianBlur::blurred(const QImage &mask, double radius)
{
    Q_ASSERT(mask.format() == QImage::Format_Alpha8);
    const int width = mask.width();
    const int height = mask.height();
    std::vector<float> values(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        std::copy_n(mask.constScanLine(y), width, values.begin() + static_cast<std::ptrdiff_t>(y) * width);
    }
    for (const int box : boxWidths(radius)) {
        for (int y = 0; y < height; ++y) {
            boxFilter(values, static_cast<std::ptrdiff_t>(y) * width, width, 1, box);
        }
        for (int x = 0; x < width; ++x) {
            boxFilter(values, x, height, width, box);
        }
    }
    QImage result(mask.size(), QImage::Format_Alpha8);
    for (int y = 0; y < height; ++y) {
        const auto row = values.begin() + static_cast<std::ptrdiff_t>(y) * width;
        std::transform(row, row + width, result.scanLine(y),
                       [](float value) { return static_cast<uchar>(std::lround(value)); });
    }
    return result;
}

QImage GaussianBlur::tinted(const QImage &mask, const QColor &color)
{
    QImage picture = mask.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), color);
    return picture;
}
