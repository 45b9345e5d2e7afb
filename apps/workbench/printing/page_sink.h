#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrinter>
#include <functional>
#include <memory>
#include <string>

#include "base/paths.h"
#include "window/desktop.h"
#include "workbench/printing/page_grid.h"
#include "workbench/printing/paper.h"

namespace workbench {

/// Where pages go, one behind another. What has failed stays failed. Destroyed ahead of `End`, it
/// leaves nothing behind, but for what a printer may have printed.
class PageSink {
public:
    virtual ~PageSink() = default;
    /// Hands the paper of the next page to `draw`. False where it cannot be written.
    virtual bool Page(const std::function<void(Paper&)>& draw) = 0;
    /// All pages are there. False where they could not all be written.
    virtual bool End() = 0;
    /// What went wrong, for the person.
    virtual QString Error() const = 0;
};

/// A PDF file, which is there once it is whole. `path` is the machine's own.
std::unique_ptr<PageSink> PdfFile(const std::string& path, const Sheet& sheet,
                                  const QString& title);
/// An SVG file, likewise; its pages stand one below another.
std::unique_ptr<PageSink> SvgFile(const std::string& path, const Sheet& sheet, const QString& title,
                                  std::int64_t pages);
/// A printer that is set up.
std::unique_ptr<PageSink> PrinterPages(std::unique_ptr<QPrinter> printer);

/// The machine's printer of that name, set up for its paper; null where there is none.
std::unique_ptr<QPrinter> PrinterFor(const kv::PrinterSettings& settings, bool landscape,
                                     const QString& title, bool inColor);

}  // namespace workbench
