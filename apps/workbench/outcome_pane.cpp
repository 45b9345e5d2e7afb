#include "workbench/outcome_pane.h"

#include <QFontDatabase>
#include <QScrollBar>
#include <QTextDocument>

namespace workbench {

namespace {

constexpr int kIndent = 4;

QString Dump(const adaptors::Json& value) {
    return QString::fromStdString(
        value.dump(-1, ' ', false, adaptors::Json::error_handler_t::replace));
}

bool IsPlain(const adaptors::Json& value) {
    return !value.is_structured() || value.empty();
}

/// A text stands as it is, unless it would not be seen.
QString PlainText(const adaptors::Json& value) {
    if (!value.is_string()) return Dump(value);
    const QString quoted = Dump(value);
    const QString bare = quoted.mid(1, quoted.size() - 2);
    return bare.isEmpty() || bare != bare.trimmed() ? quoted : bare;
}

}  // namespace

QString Readable(const adaptors::Json& value, int depth) {
    const QString indent(depth * kIndent, u' ');
    if (IsPlain(value)) return indent + PlainText(value) + u'\n';
    QString lines;
    if (value.is_array()) {
        int number = 0;
        for (const auto& each : value) {
            if (IsPlain(each)) {
                lines += indent + PlainText(each) + u'\n';
            } else {
                lines += indent + QStringLiteral("%1.\n").arg(++number) + Readable(each, depth + 1);
            }
        }
        return lines;
    }
    for (const auto& [name, each] : value.items()) {
        lines += indent + QString::fromStdString(name) + u':';
        lines += IsPlain(each) ? u' ' + PlainText(each) + u'\n' : u'\n' + Readable(each, depth + 1);
    }
    return lines;
}

OutcomePane::OutcomePane(QWidget* parent) : QPlainTextEdit(parent) {
    setReadOnly(true);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(tr("Outcome"));
    setPlaceholderText(
        tr("The menu Dialogs opens any dialog of the library on the sample data. "
           "What it gives back appears here."));
}

void OutcomePane::Add(const adaptors::Adaptor& adaptor, const adaptors::Run& run) {
    const QString heading = QStringLiteral("%1 (%2)").arg(QString::fromStdString(adaptor.className),
                                                          QString::fromStdString(run.ResultName()));
    const bool first = document()->isEmpty();
    appendPlainText((first ? QString() : QStringLiteral("\n")) + heading + u'\n' +
                    QString(heading.size(), u'-') + u'\n' + Readable(run.outcome).chopped(1));
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void OutcomePane::AddNote(const QString& note) {
    appendPlainText(note);
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

}  // namespace workbench
