#pragma once

#include <cstddef>
#include <cstdio>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/export.h"

/// Paths and files. This is the only place that knows how the dialogs' paths, with drive letters
/// and backslashes, stand for the machine's own; every operation here takes either kind. A path
/// that begins with "/" is the machine's own. On a platform that has drives nothing is translated.
namespace kv {

/// What kind of drive a letter is, by the platform's numbers.
enum DriveKind : int {
    kDriveUnknown = 0,
    kDriveNone = 1,
    kDriveRemovable = 2,
    kDriveFixed = 3,
    kDriveRemote = 4,
    kDriveCdRom = 5
};

/// Lets the drive stand for that folder of the machine; an empty text takes the drive away again.
/// "C:" is "/" unless it is mapped. Without a kind the drive is what the folder's file system says.
KVGUICTL_API void MapDrive(char letter, std::string root,
                           std::optional<DriveKind> kind = std::nullopt);

/// Names the function that maps the drives of this machine, by `MapDrive`. It is called once, when
/// a path is first translated. Forgets every drive, and returns the source there was.
KVGUICTL_API std::function<void()> SetDriveSource(std::function<void()> source);
/// Forgets every mapping, and asks the source again when next needed.
KVGUICTL_API void ForgetDrives();

/// Letters of the drives there are, in upper case, in order.
KVGUICTL_API std::string DriveLetters();

KVGUICTL_API DriveKind GetDriveKind(char letter);

/// The machine's own path. Each name that exists is found without regard to case, the exact one
/// first; names that don't exist stay as they are. "" for an unknown drive and for a network path,
/// which no file call finds.
KVGUICTL_API std::string ToNative(std::string_view path);

/// The dialogs' path, in the drive with the longest root that holds it; unchanged where none does.
/// A relative path stays relative.
KVGUICTL_API std::string FromNative(std::string_view path);

/// Folder and name joined by one backslash.
KVGUICTL_API std::string JoinPath(std::string_view folder, std::string_view name);
/// What stands up to and including the last backslash (or slash); "" if there is none.
KVGUICTL_API std::string FolderOf(std::string_view path);
/// What stands behind it.
KVGUICTL_API std::string NameOf(std::string_view path);
/// The name without what follows its last period.
KVGUICTL_API std::string TitleOf(std::string_view path);
/// Whether a name fits a pattern of "*", "?" and other characters, without regard to case.
KVGUICTL_API bool FitsPattern(std::string_view name, std::string_view pattern);
/// Absolute, in the dialogs' form, by the current folder.
KVGUICTL_API std::string AbsolutePath(std::string_view path);

KVGUICTL_API bool Exists(std::string_view path);
KVGUICTL_API bool IsFolder(std::string_view path);

/// The current folder in the dialogs' form, without a backslash at its end unless it is a root.
KVGUICTL_API std::string CurrentFolder();
KVGUICTL_API bool ChangeFolder(std::string_view path);
/// The same for what `ToNative` has given; needs no memory.
KVGUICTL_API bool ChangeNativeFolder(const std::string& native);
/// Makes one folder; false when it cannot, also when it is there.
KVGUICTL_API bool MakeFolder(std::string_view path);
/// Makes a folder and its parents; true when they are there in the end.
KVGUICTL_API bool MakeFolders(std::string_view path);
/// Removes a file. False when it cannot.
KVGUICTL_API bool RemoveFile(std::string_view path);

struct FolderEntry {
    std::string name;
    bool isFolder = false;  ///< or a link to one
};
/// What a folder holds, without "." and "..", in no order; none where it cannot be read. Beside the
/// folder itself only links are looked at.
KVGUICTL_API std::optional<std::vector<FolderEntry>> ReadFolder(std::string_view path);
/// What a folder holds, without "." and "..", in case-insensitive order of names; nothing where it
/// cannot be read.
KVGUICTL_API std::vector<FolderEntry> ListFolder(std::string_view path);

/// Opens a file to be read; null where there is none, and for a folder, a pipe or a device.
std::FILE* OpenToRead(std::string_view path);

/// A longer file than this is not read whole.
inline constexpr std::size_t kLongestFile = std::size_t{64} << 20;

/// The bytes of a file; none when it cannot be read whole.
KVGUICTL_API std::optional<std::string> ReadBinaryFile(std::string_view path);
/// The same, with each CR LF as a line feed.
KVGUICTL_API std::optional<std::string> ReadTextFile(std::string_view path);

/// Writes a file beside its target and renames it over it in `Commit`. Until then, after any
/// failure, and when it is destroyed without `Commit`, the target is what it was and nothing else
/// is left behind.
class KVGUICTL_API FileWriter {
public:
    FileWriter() = default;
    FileWriter(const FileWriter&) = delete;
    FileWriter& operator=(const FileWriter&) = delete;
    ~FileWriter();

    /// False, with `Error`, when no file can be made beside the target, or the target is no file.
    bool Open(std::string_view path);
    bool IsOpen() const { return file_ != nullptr; }
    bool Write(std::string_view bytes);
    bool Commit();
    /// What went wrong, in the machine's words; "" while nothing did.
    std::string Error() const;

private:
    bool Fail(int code);
    void Discard();

    std::FILE* file_ = nullptr;
    std::string target_;
    std::string temporary_;
    int error_ = 0;
};

/// Writes all of a file or leaves it as it was. On failure `error`, if given, tells why.
KVGUICTL_API bool WriteFileWhole(std::string_view path, std::string_view content,
                                 std::string* error = nullptr);

}  // namespace kv
