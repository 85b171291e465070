#pragma once

#include <QByteArray>
#include <QIODevice>

namespace vl {

// A request body that can be read only once. Qt's HTTP stack sends a request again when the
// server closes a connection before answering, which is fine for a read and not for a write the
// server may already have carried out; a body that cannot be rewound makes it fail instead.
class OneShotBody final : public QIODevice {
    Q_OBJECT
public:
    explicit OneShotBody(QByteArray bytes, QObject* parent = nullptr);

    bool isSequential() const override { return true; }
    bool reset() override { return false; }
    qint64 bytesAvailable() const override;

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* data, qint64 maxSize) override;

private:
    QByteArray m_bytes;
    qsizetype m_read = 0;
};

} // namespace vl
