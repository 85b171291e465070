#include "app/platform/QrImage.h"

#include <memory>
#include <qrencode.h>

namespace vl {

namespace {

constexpr int quietZone = 4;

} // namespace

QImage qrImage(const QString& text, int scale)
{
    const QByteArray data = text.toUtf8();
    const std::unique_ptr<QRcode, decltype(&QRcode_free)> code(
        QRcode_encodeString8bit(data.constData(), 0, QR_ECLEVEL_M), &QRcode_free);
    if (!code)
        return {};
    const int side = code->width + 2 * quietZone;
    QImage image(side * scale, side * scale, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (int y = 0; y < code->width; ++y) {
        for (int x = 0; x < code->width; ++x) {
            // The lowest bit of each module byte says whether it is dark.
            if (!(code->data[y * code->width + x] & 1))
                continue;
            for (int dy = 0; dy < scale; ++dy) {
                QRgb* line = reinterpret_cast<QRgb*>(image.scanLine((y + quietZone) * scale + dy));
                for (int dx = 0; dx < scale; ++dx)
                    line[(x + quietZone) * scale + dx] = qRgb(0, 0, 0);
            }
        }
    }
    return image;
}

} // namespace vl
