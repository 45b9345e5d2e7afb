#include "workbench/printing/page_sink.h"

#include <QIODevice>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrinterInfo>

#include "workbench/printing/painter_paper.h"
#include "workbench/printing/svg_paper.h"

namespace workbench {

namespace {

constexpr int kPdfResolution = 1200;  ///< dots per inch

/// Hands bytes on to a file that is there once it is whole.
class WholeFile : public QIODevice {
public:
    explicit WholeFile(const std::string& path) {
        if (file_.Open(path)) open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }
    bool Commit() { return !failed_ && file_.Commit(); }
    bool Failed() const { return failed_ || !isOpen(); }
    QString Error() const { return QString::fromStdString(file_.Error()); }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override {
        failed_ = failed_ || !file_.Write({data, static_cast<std::size_t>(size)});
        return failed_ ? -1 : size;
    }

private:
    kv::FileWriter file_;
    bool failed_ = false;
};

/// Pages of a device of Qt's.
class PaintedPages {
public:
    bool Page(QPagedPaintDevice& device, const std::function<void(Paper&)>& draw) {
        if (painter_.isActive() ? !device.newPage() : !painter_.begin(&device)) return false;
        PainterPaper paper(painter_, device.logicalDpiX() / kPointsPerInch);
        draw(paper);
        return true;
    }
    bool End() { return painter_.end(); }
    bool Begun() const { return painter_.isActive(); }

private:
    QPainter painter_;
};

class PdfSink : public PageSink {
public:
    PdfSink(const std::string& path, const Sheet& sheet, const QString& title)
        : file_(path), writer_(&file_) {
        writer_.setResolution(kPdfResolution);
        writer_.setPageMargins({});
        writer_.setPageSize(
            QPageSize({sheet.width, sheet.height}, QPageSize::Inch, {}, QPageSize::ExactMatch));
        writer_.setTitle(title);
        writer_.setCreator(QStringLiteral("Workbench"));
    }

    bool Page(const std::function<void(Paper&)>& draw) override {
        return !file_.Failed() && pages_.Page(writer_, draw) && !file_.Failed();
    }
    bool End() override { return pages_.End() && !file_.Failed() && file_.Commit(); }
    QString Error() const override { return file_.Error(); }

private:
    WholeFile file_;
    QPdfWriter writer_;
    PaintedPages pages_;
};

class PrinterSink : public PageSink {
public:
    explicit PrinterSink(std::unique_ptr<QPrinter> printer) : printer_(std::move(printer)) {}
    ~PrinterSink() override {
        if (!pages_.Begun()) return;
        printer_->abort();
        pages_.End();
    }

    bool Page(const std::function<void(Paper&)>& draw) override {
        return pages_.Page(*printer_, draw) && Works();
    }
    bool End() override { return pages_.End() && Works(); }
    QString Error() const override { return QStringLiteral("The printer does not answer."); }

private:
    bool Works() const {
        return printer_->printerState() != QPrinter::Error &&
               printer_->printerState() != QPrinter::Aborted;
    }

    std::unique_ptr<QPrinter> printer_;
    PaintedPages pages_;
};

class SvgSink : public PageSink {
public:
    SvgSink(const std::string& path, const Sheet& sheet, const QString& title, std::int64_t pages)
        : height_(sheet.height * kPointsPerInch) {
        written_ =
            file_.Open(path) && file_.Write(SvgHead(sheet.width * kPointsPerInch,
                                                    height_ * static_cast<double>(pages), title));
    }

    bool Page(const std::function<void(Paper&)>& draw) override {
        if (!written_) return false;
        SvgPaper paper;
        draw(paper);
        const QString at = QString::number(height_ * static_cast<double>(page_++), 'f', 3);
        written_ = file_.Write("<g transform=\"translate(0 " + at.toStdString() + ")\">\n" +
                               paper.Elements() + "</g>\n");
        return written_;
    }
    bool End() override { return written_ && file_.Write(SvgFoot()) && file_.Commit(); }
    QString Error() const override { return QString::fromStdString(file_.Error()); }

private:
    double height_;  ///< of a page, in points
    kv::FileWriter file_;
    bool written_ = false;
    std::int64_t page_ = 0;
};

}  // namespace

std::unique_ptr<PageSink> PdfFile(const std::string& path, const Sheet& sheet,
                                  const QString& title) {
    return std::make_unique<PdfSink>(path, sheet, title);
}

std::unique_ptr<PageSink> SvgFile(const std::string& path, const Sheet& sheet, const QString& title,
                                  std::int64_t pages) {
    return std::make_unique<SvgSink>(path, sheet, title, pages);
}

std::unique_ptr<PageSink> PrinterPages(std::unique_ptr<QPrinter> printer) {
    return std::make_unique<PrinterSink>(std::move(printer));
}

std::unique_ptr<QPrinter> PrinterFor(const kv::PrinterSettings& settings, bool landscape,
                                     const QString& title, bool inColor) {
    constexpr double kTenthMmPerMm = 10;
    const QPrinterInfo info = QPrinterInfo::printerInfo(QString::fromStdString(settings.device));
    if (info.isNull()) return nullptr;
    auto printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    printer->setFullPage(true);
    printer->setPageSize(
        QPageSize(QSizeF(settings.widthTenthMm, settings.heightTenthMm) / kTenthMmPerMm,
                  QPageSize::Millimeter));
    printer->setPageOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer->setPageMargins({});
    printer->setDocName(title);
    printer->setColorMode(inColor ? QPrinter::Color : QPrinter::GrayScale);
    return printer;
}

}  // namespace workbench
