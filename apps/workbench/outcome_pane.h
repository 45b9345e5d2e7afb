#pragma once

#include <QPlainTextEdit>

#include "adaptors/adaptor.h"

namespace workbench {

/// What the dialogs gave that were run, one below the other.
class OutcomePane : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit OutcomePane(QWidget* parent = nullptr);
    void Add(const adaptors::Adaptor& adaptor, const adaptors::Run& run);
    /// A line below what was added last.
    void AddNote(const QString& note);
};

/// The outcome as lines of "name: value", nested values indented, an empty one in quotation marks.
QString Readable(const adaptors::Json& value, int depth = 0);

}  // namespace workbench
