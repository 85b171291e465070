#pragma once

#include <QImage>
#include <QString>

namespace vl {

// `text` as a QR code: dark modules on white, `scale` pixels each, inside the four-module quiet
// zone readers need. A null image when the text does not fit a code.
QImage qrImage(const QString& text, int scale);

} // namespace vl
