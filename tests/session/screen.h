#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

namespace session {

/// An object on the bus: a window, a control, a row.
struct Reference {
    QString service;
    QDBusObjectPath path;
};

/// What a screen reader is told of one.
struct Thing {
    QString role;
    QString name;
    QStringList states;
    /// Text of an edit, the selected row of a combo box, or else the number; empty for other
    /// things.
    QString value;

    QString InWords() const;
};

/// What is on the screen, as a program tells it over the bus on which screen readers listen.
class Screen {
public:
    /// False when there is no such bus.
    bool Connect();
    /// Whether the program of that process is on the bus; it is then the one that is looked at.
    bool Find(qint64 process);

    /// All that is in sight, in order. Of long lists the first rows, and those that are selected.
    QList<Thing> InSight() const;

private:
    void Collect(const Reference& at, QList<Thing>& things) const;
    QList<Reference> Children(const Reference& at) const;
    QList<Reference> SomeChildren(const Reference& at) const;
    QString Value(const Reference& at, const QString& role) const;
    QString SelectedRow(const Reference& at) const;

    QDBusConnection bus_{QString()};
    std::optional<Reference> program_;
};

}  // namespace session
