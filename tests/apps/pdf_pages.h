#pragma once

#include <QByteArray>
#include <QList>
#include <QPointF>
#include <QTransform>
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace test {

/// A page of a PDF as its drawing commands tell it, in inches from the sheet's upper left corner.
struct PdfPage {
    QSizeF size;
    std::vector<std::vector<QPointF>> paths;  ///< corners of each part of a line or an outline
    int texts = 0;                            ///< how many times text was shown
    int pictures = 0;

    std::vector<QPointF> Corners() const {
        std::vector<QPointF> corners;
        for (const auto& path : paths)
            corners.insert(corners.end(), path.begin(), path.end());
        return corners;
    }
};

/// Reads as much of the format as the drawing of pages takes.
class PdfReader {
public:
    explicit PdfReader(QByteArray file) : file_(std::move(file)) {}

    std::vector<PdfPage> Pages() const {
        std::vector<PdfPage> pages;
        for (qsizetype at = file_.indexOf("/Type /Page\n"); at >= 0;
             at = file_.indexOf("/Type /Page\n", at + 1)) {
            const qsizetype end = file_.indexOf("endobj", at);
            const QByteArray object = file_.mid(at, end - at);
            PdfPage page;
            const auto box = Numbers(object, "/MediaBox [");
            page.size = QSizeF(box.value(2), box.value(3)) / kPoints;
            const auto content = static_cast<int>(Numbers(object, "/Contents ").value(0));
            Play(Stream(content), page);
            pages.push_back(std::move(page));
        }
        return pages;
    }

private:
    static constexpr double kPoints = 72;

    static QList<double> Numbers(const QByteArray& text, const char* behind) {
        QList<double> numbers;
        const qsizetype at = text.indexOf(behind);
        if (at < 0) return numbers;
        QByteArray rest = text.mid(at + static_cast<qsizetype>(std::string_view(behind).size()));
        rest = rest.left(rest.indexOf('\n')).replace(']', ' ');
        for (const QByteArray& word : rest.simplified().split(' ')) {
            bool isNumber = false;
            const double number = word.toDouble(&isNumber);
            if (!isNumber) break;
            numbers.append(number);
        }
        return numbers;
    }

    QByteArray Stream(int object) const {
        const QByteArray head = "\n" + QByteArray::number(object) + " 0 obj";
        const qsizetype at = file_.indexOf(head);
        const qsizetype begin = file_.indexOf("stream\n", at) + 7;
        const qsizetype end = file_.indexOf("endstream", begin);
        const QByteArray bytes = file_.mid(begin, end - begin);
        const bool packed = file_.mid(at, begin - at).contains("FlateDecode");
        // What qUncompress wants ahead is a guess at the size.
        return packed ? qUncompress(QByteArray("\0\0\xff\xff", 4) + bytes) : bytes;
    }

    static void Play(const QByteArray& commands, PdfPage& page) {
        QTransform now;
        std::vector<QTransform> kept;
        std::vector<double> numbers;
        const auto add = [&](bool begins) {
            const QPointF at = now.map(QPointF(numbers[numbers.size() - 2], numbers.back()));
            if (begins) page.paths.emplace_back();
            page.paths.back().push_back({at.x() / kPoints, page.size.height() - at.y() / kPoints});
        };
        for (const QByteArray& word : commands.simplified().split(' ')) {
            bool isNumber = false;
            const double number = word.toDouble(&isNumber);
            if (isNumber) {
                numbers.push_back(number);
                continue;
            }
            if (word == "q") kept.push_back(now);
            if (word == "Q" && !kept.empty()) now = kept.back(), kept.pop_back();
            if (word == "cm" && numbers.size() >= 6) {
                const double* n = numbers.data() + numbers.size() - 6;
                now = QTransform(n[0], n[1], n[2], n[3], n[4], n[5]) * now;
            }
            if (word == "m" || word == "l" || word == "c") add(word == "m");
            if (word == "Tj" || word == "TJ") ++page.texts;
            if (word == "Do") ++page.pictures;
            numbers.clear();
        }
    }

    QByteArray file_;
};

}  // namespace test
