// player SCRIPT PROGRAM [ARGUMENT...]: plays a person who works with a program by keys alone, and a
// screen reader that looks at it. Ends with 0 when all was seen that the script tells; 77 where no
// screen readers are listened to.
//
// A script has a step on each line; # begins a comment, and quotes hold what has blanks in it.
//
//   press KEY...               presses keys on the display, one after the other, as "ctrl+c"
//   type TEXT                  types it
//   see ROLE NAME [STATE...] [= VALUE]
//                              waits until something of that kind is in sight, in these states, or
//                              with "!" ahead not in that one; a * in a name or a value is any text
//   gone ROLE NAME [STATE...] [= VALUE]
//                              waits until nothing such is in sight
//   clipboard TEXT             waits until that is on the clipboard
//   end [CODE]                 waits until the program has ended, with that code

#include <QClipboard>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>
#include <cstdio>
#include <functional>

#include "session/screen.h"

namespace {

using session::Thing;

enum ExitCode { kPlayed = 0, kFailed = 1, kWrongUse = 2, kLacking = 77 };

constexpr int kLimit = 40'000;  // milliseconds that anything may take
constexpr int kPause = 20;      // milliseconds between two looks

void Say(const QString& words) {
    std::fprintf(stderr, "%s\n", words.toUtf8().constData());
}

bool Matches(const QString& text, const QString& pattern) {
    const auto options = QRegularExpression::UnanchoredWildcardConversion;
    const QString expression = QRegularExpression::wildcardToRegularExpression(pattern, options);
    const QRegularExpression whole(QRegularExpression::anchoredPattern(expression),
                                   QRegularExpression::DotMatchesEverythingOption);
    return whole.match(text).hasMatch();
}

/// What a step of the script looks for.
class Wanted {
public:
    explicit Wanted(QStringList words) {
        if (words.size() >= 2 && words.at(words.size() - 2) == QLatin1String("=")) {
            value_ = words.takeLast();
            words.removeLast();
        }
        role_ = words.value(0);
        name_ = words.value(1);
        states_ = words.mid(2);
    }
    bool IsWhole() const { return !role_.isEmpty() && !name_.isNull(); }

    bool Fits(const Thing& thing) const {
        return thing.role == role_ && Matches(thing.name, name_) &&
               (value_.isNull() || Matches(thing.value, value_)) &&
               std::all_of(states_.begin(), states_.end(), [&](const QString& state) {
                   const bool not_ = state.startsWith(u'!');
                   return thing.states.contains(not_ ? state.mid(1) : state) != not_;
               });
    }

private:
    QString role_;
    QString name_;
    QStringList states_;
    QString value_;
};

class Player {
public:
    Player(const QString& program, const QStringList& arguments) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home_.filePath("config"));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home_.filePath("data"));
        program_.setProcessEnvironment(environment);
        program_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program_.start(program, arguments);
    }
    ~Player() {
        program_.kill();
        program_.waitForFinished();
    }
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    bool Begin() {
        return program_.waitForStarted() && screen_.Connect() &&
               WaitUntil([this] { return screen_.Find(program_.processId()); });
    }

    /// False when it did not come so.
    bool Play(QStringList words) {
        const QString what = words.takeFirst();
        if (what == QLatin1String("press")) return Xdotool(QStringList{"key"} + words);
        if (what == QLatin1String("type")) return Xdotool(QStringList{"type", "--"} + words);
        if (what == QLatin1String("see")) return See(Wanted(words), true);
        if (what == QLatin1String("gone")) return See(Wanted(words), false);
        if (what == QLatin1String("clipboard")) return SeeClipboard(words.value(0));
        if (what == QLatin1String("end")) return SeeEnd(words.value(0).toInt());
        return false;
    }

    void TellWhatIsInSight() const {
        Say(QStringLiteral("In sight:"));
        for (const Thing& thing : screen_.InSight())
            Say(u' ' + thing.InWords());
        Say(QStringLiteral("On the clipboard: ") + QGuiApplication::clipboard()->text());
    }

private:
    static bool WaitUntil(const std::function<bool()>& done) {
        QElapsedTimer timer;
        timer.start();
        while (!done()) {
            if (timer.hasExpired(kLimit)) return false;
            QElapsedTimer pause;
            pause.start();
            while (!pause.hasExpired(kPause))
                QCoreApplication::processEvents(QEventLoop::AllEvents, kPause);
        }
        return true;
    }

    bool See(const Wanted& wanted, bool there) const {
        if (!wanted.IsWhole()) return false;
        return WaitUntil([&] {
            const auto things = screen_.InSight();
            return std::any_of(things.begin(), things.end(),
                               [&](const Thing& thing) { return wanted.Fits(thing); }) == there;
        });
    }
    static bool SeeClipboard(const QString& pattern) {
        return WaitUntil([&] { return Matches(QGuiApplication::clipboard()->text(), pattern); });
    }
    bool SeeEnd(int code) {
        return WaitUntil([this] { return program_.state() == QProcess::NotRunning; }) &&
               program_.exitStatus() == QProcess::NormalExit && program_.exitCode() == code;
    }
    static bool Xdotool(const QStringList& words) {
        return QProcess::execute(QStringLiteral("xdotool"), words) == 0;
    }

    QTemporaryDir home_;
    QProcess program_;
    session::Screen screen_;
};

int PlayAll(Player& player, QFile& script) {
    QTextStream lines(&script);
    for (int number = 1; !lines.atEnd(); ++number) {
        const QString line = lines.readLine().trimmed();
        if (line.isEmpty() || line.startsWith(u'#')) continue;
        if (player.Play(QProcess::splitCommand(line))) continue;
        Say(QStringLiteral("FAILED in line %1: %2").arg(number).arg(line));
        player.TellWhatIsInSight();
        return kFailed;
    }
    return kPlayed;
}

}  // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    QStringList arguments = QGuiApplication::arguments().mid(1);
    if (arguments.size() < 2) return kWrongUse;
    QFile script(arguments.takeFirst());
    if (!script.open(QIODevice::ReadOnly)) return kWrongUse;
    Player player(arguments.takeFirst(), arguments);
    if (!player.Begin()) {
        Say(QStringLiteral("skipped: the program is not on a bus for screen readers"));
        return kLacking;
    }
    return PlayAll(player, script);
}
