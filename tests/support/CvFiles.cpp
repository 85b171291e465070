#include "tests/support/CvFiles.h"

#include <QDir>
#include <QFile>
#include <QList>

namespace vl::test {

QByteArray pdfWithText(const QByteArray& text)
{
    // pdftotext drops what falls off the page, so long texts go on lines of their own.
    QByteArray stream = "BT /F1 9 Tf 11 TL 36 760 Td";
    QByteArray line;
    for (const QByteArray& word : text.split(' ')) {
        if (!line.isEmpty() && line.size() + word.size() > 90) {
            stream += " (" + line + ") Tj T*";
            line.clear();
        }
        line += (line.isEmpty() ? "" : " ") + word;
    }
    stream += " (" + line + ") Tj ET";
    const QList<QByteArray> objects{
        "<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[3 0 R]/Count 1>>",
        "<</Type/Page/Parent 2 0 R/MediaBox[0 0 612 792]/Contents 4 0 R"
        "/Resources<</Font<</F1 5 0 R>>>>>>",
        "<</Length " + QByteArray::number(stream.size()) + ">>stream\n" + stream + "\nendstream",
        "<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>"};
    QByteArray out = "%PDF-1.4\n";
    QList<qsizetype> offsets;
    for (qsizetype i = 0; i < objects.size(); ++i) {
        offsets.append(out.size());
        out += QByteArray::number(i + 1) + " 0 obj" + objects[i] + "endobj\n";
    }
    const qsizetype table = out.size();
    out += "xref\n0 " + QByteArray::number(objects.size() + 1) + "\n0000000000 65535 f \n";
    for (const qsizetype offset : offsets)
        out += QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
    out += "trailer<</Size " + QByteArray::number(objects.size() + 1) +
           "/Root 1 0 R>>\nstartxref\n" + QByteArray::number(table) + "\n%%EOF\n";
    return out;
}

QString writeFile(const QString& folder, const QString& name, const QByteArray& bytes)
{
    const QString path = QDir(folder).filePath(name);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
    return path;
}

} // namespace vl::test
