#include "workbench/printing/svg_paper.h"

#include "base/text.h"

namespace workbench {

namespace {

std::string Number(double value) {
    return kv::FormatText("%.3f", value);
}

std::string Place(double x, double y) {
    return Number(x) + " " + Number(y);
}

std::string ColorText(const QColor& color) {
    return color.isValid() ? color.name().toStdString() : "none";
}

/// Text between tags, or in the quotation marks of an attribute. What XML forbids is a blank.
std::string Escaped(const QString& text) {
    QString escaped;
    for (const QChar ch : text)
        escaped += ch.unicode() < u' ' ? QChar(u' ') : ch;
    return escaped.toHtmlEscaped().toStdString();
}

std::string PathText(const QPainterPath& shape) {
    std::string text;
    for (int i = 0; i < shape.elementCount(); ++i) {
        const QPainterPath::Element& element = shape.elementAt(i);
        switch (element.type) {
            case QPainterPath::MoveToElement:
                text += "M" + Place(element.x, element.y);
                break;
            case QPainterPath::LineToElement:
                text += "L" + Place(element.x, element.y);
                break;
            case QPainterPath::CurveToElement:
                text += "C" + Place(element.x, element.y);
                break;
            case QPainterPath::CurveToDataElement:
                text += " " + Place(element.x, element.y);
                break;
        }
    }
    return text;
}

/// As a painter's pen dashes: in widths of the line.
std::string DashText(const Ink& ink) {
    if (ink.dashes == Dashes::kWhole) return "";
    const std::string dash = Number(4 * ink.width) + " " + Number(2 * ink.width);
    const std::string dot = Number(ink.width) + " " + Number(2 * ink.width);
    return " stroke-dasharray=\"" + dash + (ink.dashes == Dashes::kDashed ? "" : " " + dot) + "\"";
}

const char* AnchorText(Anchor anchor) {
    switch (anchor) {
        case Anchor::kMiddle:
            return "middle";
        case Anchor::kRight:
            return "end";
        case Anchor::kLeft:
            break;
    }
    return "start";
}

}  // namespace

void SvgPaper::Draw(const QPainterPath& shape, const Ink& ink) {
    elements_ += "<path d=\"" + PathText(shape) + "\" fill=\"" + ColorText(ink.fill) +
                 "\" fill-rule=\"evenodd\"";
    if (ink.line.isValid()) {
        elements_ += " stroke=\"" + ColorText(ink.line) + "\" stroke-width=\"" + Number(ink.width) +
                     "\"" + DashText(ink);
    }
    elements_ += "/>\n";
}

void SvgPaper::Write(const Writing& writing) {
    elements_ += "<text transform=\"translate(" + Place(writing.at.x(), writing.at.y()) + ")";
    if (writing.turned != 0) elements_ += " rotate(" + Number(writing.turned) + ")";
    elements_ += "\" font-size=\"" + Number(writing.size) + "\" text-anchor=\"" +
                 AnchorText(writing.anchor) + "\" fill=\"" + ColorText(writing.color) + "\"";
    if (writing.bold) elements_ += " font-weight=\"bold\"";
    if (writing.halo.isValid()) {
        elements_ += " stroke=\"" + ColorText(writing.halo) + "\" stroke-width=\"" +
                     Number(kHaloWidth * writing.size) +
                     "\" stroke-linejoin=\"round\" paint-order=\"stroke\"";
    }
    if (writing.stroke > 0) {
        elements_ += " stroke=\"" + ColorText(writing.color) + "\" stroke-width=\"" +
                     Number(writing.stroke) + "\" stroke-linejoin=\"round\"";
    }
    elements_ += ">" + Escaped(writing.text) + "</text>\n";
}

std::string SvgHead(double width, double height, const QString& title) {
    const auto inches = [](double points) { return Number(points / kPointsPerInch) + "in"; };
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
           inches(width) + "\" height=\"" + inches(height) + "\" viewBox=\"0 0 " +
           Place(width, height) + "\" font-family=\"" + Escaped(PaperFont()) +
           ", sans-serif\">\n<title>" + Escaped(title) + "</title>\n";
}

std::string SvgFoot() {
    return "</svg>\n";
}

}  // namespace workbench
