#include "kvdlg/script_lines.h"

namespace kvdlg {

namespace {

class Scanner {
public:
    explicit Scanner(std::string_view json) : json_(json) {}

    std::map<std::string, int> Scan() {
        Value("", 0);
        return std::move(lines_);
    }

private:
    bool AtEnd() const { return at_ >= json_.size(); }
    char Next() {
        const char ch = json_[at_++];
        if (ch == '\n') ++line_;
        return ch;
    }
    /// The next character that is no white space; 0 at the end.
    char Peek() {
        constexpr std::string_view kWhiteSpace = " \t\r\n";
        while (!AtEnd() && kWhiteSpace.find(json_[at_]) != std::string_view::npos)
            Next();
        return AtEnd() ? '\0' : json_[at_];
    }
    bool Take(char expected) {
        if (Peek() != expected) return false;
        Next();
        return true;
    }

    void Value(const std::string& pointer, int depth) {
        const char first = Peek();
        lines_[pointer] = line_;
        if (depth > kDeepestJson) {
            at_ = json_.size();
        } else if (first == '{') {
            Object(pointer, depth);
        } else if (first == '[') {
            Array(pointer, depth);
        } else if (first == '"') {
            Text();
        } else {
            Word();
        }
    }

    void Object(const std::string& pointer, int depth) {
        Next();
        while (Peek() == '"') {
            const std::string key = Text();
            if (!Take(':')) return;
            Value(pointer + "/" + key, depth + 1);
            if (!Take(',')) break;
        }
        Take('}');
    }

    void Array(const std::string& pointer, int depth) {
        Next();
        for (int i = 0; Peek() != ']' && !AtEnd(); ++i) {
            Value(pointer + "/" + std::to_string(i), depth + 1);
            if (!Take(',')) break;
        }
        Take(']');
    }

    /// The text as it is written, without its quotes.
    std::string Text() {
        std::string text;
        Next();
        while (!AtEnd()) {
            const char ch = Next();
            if (ch == '"') break;
            text += ch;
            if (ch == '\\' && !AtEnd()) text += Next();
        }
        return text;
    }

    void Word() {
        constexpr std::string_view kEnds = ",]} \t\r\n";
        while (!AtEnd() && kEnds.find(json_[at_]) == std::string_view::npos)
            Next();
    }

    std::string_view json_;
    std::size_t at_ = 0;
    int line_ = 1;
    std::map<std::string, int> lines_;
};

}  // namespace

std::map<std::string, int> LinesOf(std::string_view json) {
    return Scanner(json).Scan();
}

}  // namespace kvdlg
