#pragma once

#include <memory>
#include <string>

#include "base/export.h"
#include "frame/kvcom/exception.h"
#include "frame/kvdbkvn/db_info.h"

/// How a manager connects. Every caller passes 1.
enum enuConnectType : int { KV_CONNECT_DEFAULT = 1 };

/// A short-lived manager of one database connection: connect, select, read rows, free, disconnect,
/// inside a try block for `CKvException`.
///
/// The engine is the one that the connection record in force names when `Connect` is called. The
/// statements are in Oracle's dialect; the manager makes of them what the engine understands.
/// Copies share the connection and the rows.
class KVGUICTL_API CKvDbAbsDataMgr {
public:
    /// Makes no connection yet.
    explicit CKvDbAbsDataMgr(enuConnectType type);
    explicit CKvDbAbsDataMgr(int type) : CKvDbAbsDataMgr(static_cast<enuConnectType>(type)) {}
    CKvDbAbsDataMgr(const CKvDbAbsDataMgr&);
    CKvDbAbsDataMgr& operator=(const CKvDbAbsDataMgr&);
    ~CKvDbAbsDataMgr();

    /// Connects with the connection record in force. Returns 1; failure is thrown.
    int Connect();
    bool IsConnected() const;

    /// Runs one statement that reads, and holds its rows in place of those held before. A text that
    /// would change data, or holds two statements, is refused with a `CKvException`. Returns the
    /// number of rows.
    int Select(const std::string& sql);

    /// Rows held; 0 is a normal outcome.
    int NumberOfRows() const;

    /// Text of one cell, by zero-based row and column in the order of the select list: the engine's
    /// own text, "" for null and for a place outside the result. Valid until `FreeData` or the next
    /// `Select`.
    const char* GetItem(int row, int column) const;

    /// Drops the rows. Harmless at any time.
    void FreeData();

    /// Commits the data changes made over this manager and not committed yet, and gives the session
    /// back. Where they cannot be kept they are undone, and a message box shows why. Throws
    /// nothing. Harmless at any time.
    void Disconnect();

    /// Makes the changes last that were made over this manager since it connected, or since the
    /// last `Commit` or `Rollback`. A failure is thrown, and undoes them all. Whoever changes rows
    /// calls it last in the try block, and `Rollback` in the catch: a change that is left to
    /// `Disconnect` can fail after its caller has gone on.
    void Commit();
    /// Undoes them. Throws nothing; harmless at any time.
    void Rollback();

    /// Run one full INSERT or DELETE text. Return the number of rows; failure is thrown, and undoes
    /// that statement alone. What is changed is not lasting before `Commit` or `Disconnect`.
    int Insert(const std::string& sql);
    int Delete(const std::string& sql);

    /// Run one full statement: one that defines (which commits, as on Oracle), or one that changes
    /// data, grants or commits. Return true; failure is thrown.
    bool ExecuteDDL(std::string sql);
    bool ExecuteDML(std::string sql);

    /// Sets the connection record for the whole process, not for this object. A relative path in it
    /// counts from the folder that is current now.
    void SetDbInfo(CKvDbInfo& info);

private:
    struct State;
    std::shared_ptr<State> m_pState;
};
