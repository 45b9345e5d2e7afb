#include "frame/kvcom/exception.h"

#include <utility>

CKvException::CKvException(std::string message, std::string statement)
    : m_sMessage(std::move(message)), m_sStatement(std::move(statement)) {}

std::string CKvException::GetErrorMessage(bool withSource, bool withStatement) const {
    std::string text = withSource ? "Database error: " : "";
    text += m_sMessage;
    if (withStatement && !m_sStatement.empty()) text += "\n\n" + m_sStatement;
    return text;
}
