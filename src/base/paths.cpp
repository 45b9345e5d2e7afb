#include "base/paths.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <map>
#include <memory>
#include <system_error>
#include <utility>

#include "base/file_fault.h"
#include "base/text.h"

namespace fs = std::filesystem;

namespace kv {

namespace {

constexpr bool kHasDrives = fs::path::preferred_separator != '/';

struct Drives {
    std::map<char, std::string> roots;  ///< each without a slash at its end
    std::map<char, DriveKind> kinds;    ///< of those that were mapped with one
    std::function<void()> source;
    bool asked = false;
};

Drives& Registered() {
    static Drives drives;
    return drives;
}

/// The drives, the source asked. What the source itself translates sees what it has mapped so far.
Drives& AllDrives() {
    Drives& drives = Registered();
    if (drives.asked) return drives;
    drives.asked = true;
    drives.roots = {{'C', ""}};
    if (drives.source) drives.source();
    return drives;
}

bool IsLetter(char ch) {
    return ToUpper(ch) >= 'A' && ToUpper(ch) <= 'Z';
}
bool IsSeparator(char ch) {
    return ch == '\\' || ch == '/';
}
bool HasLetter(std::string_view path) {
    return path.size() >= 2 && IsLetter(path[0]) && path[1] == ':';
}

std::string WithSlashes(std::string_view path) {
    return ReplaceAll(path, "\\", "/");
}
std::string WithBackslashes(std::string_view path) {
    return ReplaceAll(path, "/", "\\");
}

bool IsThere(const std::string& native) {
    std::error_code error;
    return fs::exists(fs::symlink_status(native, error));
}

/// Visits what a folder holds but "." and ".."; false where it cannot be read. The standard's own
/// iterator ends the process where memory runs out.
template <class Visit>
bool ForEachEntry(const std::string& folder, Visit visit) {
    struct Close {
        void operator()(DIR* opened) const { closedir(opened); }
    };
    const std::unique_ptr<DIR, Close> opened(opendir(folder.c_str()));
    if (!opened) return false;
    while (const dirent* entry = readdir(opened.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") visit(*entry);
    }
    return true;
}

/// The kernel tells what an entry is, but for links and some file systems.
bool IsFolderIn(const std::string& folder, const dirent& entry) {
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return entry.d_type == DT_DIR;
    std::error_code error;
    return fs::is_directory(fs::path(folder) / entry.d_name, error);
}

/// The name in a folder that differs in case alone, the first in byte order; "" if there is none.
std::string OtherCase(const std::string& folder, const std::string& name) {
    std::string found;
    ForEachEntry(folder, [&](const dirent& entry) {
        const std::string_view candidate = entry.d_name;
        if (EqualsNoCase(candidate, name) && (found.empty() || candidate < found))
            found = candidate;
    });
    return found;
}

std::string FindExisting(const std::string& native) {
    std::string found = native.starts_with('/') ? "/" : "";
    bool lost = false;
    for (const std::string& name : Split(native, '/')) {
        if (name.empty()) continue;
        if (!found.empty() && found.back() != '/') found += '/';
        if (lost || IsThere(found + name)) {
            found += name;
            continue;
        }
        const std::string other = OtherCase(found.empty() ? "." : found, name);
        lost = other.empty();
        found += lost ? name : other;
    }
    return found;
}

/// A path behind its drive letter and colon; "" when there is no such drive.
std::string InDrive(char letter, std::string_view rest) {
    const auto& roots = AllDrives().roots;
    const auto drive = roots.find(ToUpper(letter));
    if (drive == roots.end()) return {};
    if (rest.empty() || IsSeparator(rest[0])) return drive->second + "/" + WithSlashes(rest);
    const std::string current = CurrentFolder();
    const bool here = HasLetter(current) && current[0] == drive->first;
    return here ? WithSlashes(rest) : drive->second + "/" + WithSlashes(rest);
}

std::string InCurrentDrive(std::string_view path) {
    const std::string current = CurrentFolder();
    return InDrive(HasLetter(current) ? current[0] : 'C', path);
}

bool Holds(const std::string& root, std::string_view native) {
    return native.starts_with(root) && (native.size() == root.size() || native[root.size()] == '/');
}

std::string WithoutSlashAtEnd(std::string path) {
    while (!path.empty() && path.back() == '/')
        path.pop_back();
    return path;
}

bool IsLink(const std::string& native) {
    std::error_code error;
    return fs::is_symlink(fs::symlink_status(native, error));
}

/// A link stands for the file that it leads to, there already or not, so that this one is replaced
/// and not the link.
std::string WriteTarget(const std::string& native) {
    constexpr int kMostLinks = 40;
    fs::path target = native;
    std::error_code error;
    for (int i = 0; i < kMostLinks && IsLink(target.string()); ++i)
        target = target.parent_path() / fs::read_symlink(target, error);
    return target.string();
}

/// 0 when a file may be put there.
int TargetFault(const std::string& native) {
    if (native.empty()) return ENOENT;
    if (IsLink(native)) return ELOOP;
    std::error_code error;
    const fs::file_status status = fs::status(native, error);
    if (!fs::exists(status)) return 0;
    if (fs::is_directory(status)) return EISDIR;
    if (!fs::is_regular_file(status)) return EINVAL;
    return access(native.c_str(), W_OK) == 0 ? 0 : errno;
}

std::string TemporaryName(const std::string& target, int attempt) {
    return (fs::path(target).parent_path() /
            FormatText(".kvguictl-%d-%d", static_cast<int>(getpid()), attempt))
        .string();
}

}  // namespace

void MapDrive(char letter, std::string root, std::optional<DriveKind> kind) {
    if (!IsLetter(letter)) return;
    Drives& drives = AllDrives();
    const char drive = ToUpper(letter);
    drives.kinds.erase(drive);
    if (kind && !root.empty()) drives.kinds[drive] = *kind;
    if (root.empty() && drive != 'C') {
        drives.roots.erase(drive);
    } else {
        drives.roots[drive] = WithoutSlashAtEnd(std::move(root));
    }
}

std::function<void()> SetDriveSource(std::function<void()> source) {
    ForgetDrives();
    return std::exchange(Registered().source, std::move(source));
}

void ForgetDrives() {
    Registered().roots.clear();
    Registered().kinds.clear();
    Registered().asked = false;
}

std::string DriveLetters() {
    std::string letters;
    for (const auto& [letter, root] : AllDrives().roots)
        letters += letter;
    return letters;
}

DriveKind GetDriveKind(char letter) {
    struct Magic {
        unsigned int number;
        DriveKind kind;
    };
    // Numbers of the kernel's file systems: NFS, SMB, SMB2, CIFS; ISO 9660, UDF.
    constexpr std::array<Magic, 6> kMagic = {{{0x6969, kDriveRemote},
                                              {0x517B, kDriveRemote},
                                              {0xFE534D42, kDriveRemote},
                                              {0xFF534D42, kDriveRemote},
                                              {0x9660, kDriveCdRom},
                                              {0x15013346, kDriveCdRom}}};
    const auto& kinds = AllDrives().kinds;
    if (const auto known = kinds.find(ToUpper(letter)); known != kinds.end()) return known->second;
    const std::string root = InDrive(letter, "\\");
    struct statfs system {};
    if (root.empty() || statfs(root.c_str(), &system) != 0) return kDriveNone;
    for (const Magic& magic : kMagic) {
        if (static_cast<unsigned int>(system.f_type) == magic.number) return magic.kind;
    }
    return kDriveFixed;
}

std::string ToNative(std::string_view path) {
    if (kHasDrives || path.empty()) return std::string(path);
    if (path.starts_with("\\\\")) return {};
    std::string native;
    if (HasLetter(path)) {
        native = InDrive(path[0], path.substr(2));
    } else if (path[0] == '\\') {
        native = InCurrentDrive(path);
    } else {
        native = WithSlashes(path);
    }
    return FindExisting(native);
}

std::string FromNative(std::string_view path) {
    if (kHasDrives) return std::string(path);
    if (!path.starts_with('/')) return WithBackslashes(path);
    const std::pair<const char, std::string>* best = nullptr;
    for (const auto& drive : AllDrives().roots) {
        if (!Holds(drive.second, path)) continue;
        if (!best || drive.second.size() > best->second.size()) best = &drive;
    }
    if (!best) return std::string(path);
    const std::string rest = WithBackslashes(path.substr(best->second.size()));
    return std::string(1, best->first) + ":" + (rest.empty() ? "\\" : rest);
}

std::string JoinPath(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.empty() && !IsSeparator(path.back())) path += '\\';
    return path.append(name);
}

std::string FolderOf(std::string_view path) {
    return std::string(path.substr(0, path.find_last_of("\\/") + 1));
}

std::string NameOf(std::string_view path) {
    return std::string(path.substr(path.find_last_of("\\/") + 1));
}

std::string TitleOf(std::string_view path) {
    const std::string name = NameOf(path);
    return name.substr(0, name.rfind('.'));
}

std::string AbsolutePath(std::string_view path) {
    const std::string native = ToNative(path);
    if (native.empty()) return std::string(path);
    std::error_code error;
    const std::string full = fs::absolute(native, error).lexically_normal().string();
    return FromNative(full == "/" ? full : WithoutSlashAtEnd(full));
}

bool FitsPattern(std::string_view name, std::string_view pattern) {
    std::size_t at = 0;
    std::size_t read = 0;
    std::size_t star = std::string_view::npos;
    std::size_t starAt = 0;
    while (at < name.size()) {
        if (read < pattern.size() && pattern[read] == '*') {
            star = read++;
            starAt = at;
        } else if (read < pattern.size() &&
                   (pattern[read] == '?' || ToLower(pattern[read]) == ToLower(name[at]))) {
            ++read;
            ++at;
        } else if (star != std::string_view::npos) {
            read = star + 1;
            at = ++starAt;
        } else {
            return false;
        }
    }
    while (read < pattern.size() && pattern[read] == '*')
        ++read;
    return read == pattern.size();
}

bool Exists(std::string_view path) {
    std::error_code error;
    return fs::exists(ToNative(path), error);
}

bool IsFolder(std::string_view path) {
    std::error_code error;
    return fs::is_directory(ToNative(path), error);
}

std::string CurrentFolder() {
    std::error_code error;
    return FromNative(fs::current_path(error).string());
}

bool ChangeFolder(std::string_view path) {
    return ChangeNativeFolder(ToNative(path));
}

bool ChangeNativeFolder(const std::string& native) {
    return !FileCallFails() && chdir(native.c_str()) == 0;
}

bool MakeFolder(std::string_view path) {
    std::error_code error;
    return !FileCallFails() && fs::create_directory(ToNative(path), error);
}

bool MakeFolders(std::string_view path) {
    const std::string native = ToNative(path);
    std::error_code error;
    if (!FileCallFails()) fs::create_directories(native, error);
    return fs::is_directory(native, error);
}

bool RemoveFile(std::string_view path) {
    std::error_code error;
    const std::string native = ToNative(path);
    return !fs::is_directory(native, error) && !FileCallFails() && fs::remove(native, error);
}

std::optional<std::vector<FolderEntry>> ReadFolder(std::string_view path) {
    const std::string folder = ToNative(path);
    std::vector<FolderEntry> entries;
    const auto add = [&](const dirent& entry) {
        entries.push_back({entry.d_name, IsFolderIn(folder, entry)});
    };
    if (FileCallFails() || folder.empty() || !ForEachEntry(folder, add)) return std::nullopt;
    return entries;
}

std::vector<FolderEntry> ListFolder(std::string_view path) {
    std::vector<FolderEntry> entries = ReadFolder(path).value_or(std::vector<FolderEntry>());
    std::sort(entries.begin(), entries.end(), [](const FolderEntry& a, const FolderEntry& b) {
        const int order = CompareNoCase(a.name, b.name);
        return order != 0 ? order < 0 : a.name < b.name;
    });
    return entries;
}

std::FILE* OpenToRead(std::string_view path) {
    if (FileCallFails()) return nullptr;
    // Without O_NONBLOCK, opening a pipe waits for someone to write into it.
    const int opened = open(ToNative(path).c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (opened < 0) return nullptr;
    struct stat status {};
    const bool isFile = fstat(opened, &status) == 0 && S_ISREG(status.st_mode);
    std::FILE* file = isFile ? fdopen(opened, "rb") : nullptr;
    if (!file) close(opened);
    return file;
}

std::optional<std::string> ReadBinaryFile(std::string_view path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(OpenToRead(path), &std::fclose);
    if (!file) return std::nullopt;
    std::string content;
    std::array<char, 16384> buffer;
    while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), file.get())) {
        content.append(buffer.data(), count);
        if (content.size() > kLongestFile || FileCallFails()) return std::nullopt;
    }
    return std::ferror(file.get()) == 0 ? std::optional(std::move(content)) : std::nullopt;
}

std::optional<std::string> ReadTextFile(std::string_view path) {
    const std::optional<std::string> bytes = ReadBinaryFile(path);
    if (!bytes) return std::nullopt;
    return ReplaceAll(*bytes, "\r\n", "\n");
}

FileWriter::~FileWriter() {
    Discard();
}

bool FileWriter::Open(std::string_view path) {
    Discard();
    error_ = 0;
    target_ = WriteTarget(ToNative(path));
    if (const int fault = TargetFault(target_)) return Fail(fault);
    constexpr int kAttempts = 1000;
    for (int attempt = 0; attempt < kAttempts && !file_; ++attempt) {
        temporary_ = TemporaryName(target_, attempt);
        file_ = FileCallFails() ? nullptr : std::fopen(temporary_.c_str(), "wbx");
        if (!file_ && errno != EEXIST) break;
    }
    if (!file_) return Fail(errno);
    std::error_code error;
    const fs::file_status old = fs::status(target_, error);
    if (fs::exists(old)) fs::permissions(temporary_, old.permissions(), error);
    return true;
}

bool FileWriter::Write(std::string_view bytes) {
    if (!file_) return false;
    const bool written =
        !FileCallFails() && std::fwrite(bytes.data(), 1, bytes.size(), file_) == bytes.size();
    return written || Fail(errno);
}

bool FileWriter::Commit() {
    if (!file_) return false;
    // The old file goes only when the new one is on the disk.
    if (FileCallFails() || std::fflush(file_) != 0 || fsync(fileno(file_)) != 0) return Fail(errno);
    const bool closed = std::fclose(std::exchange(file_, nullptr)) == 0;
    if (closed && !FileCallFails() && std::rename(temporary_.c_str(), target_.c_str()) == 0)
        return true;
    const int code = errno;
    std::remove(temporary_.c_str());
    return Fail(code);
}

bool FileWriter::Fail(int code) {
    error_ = code;
    Discard();
    return false;
}

std::string FileWriter::Error() const {
    return error_ == 0 ? std::string() : std::generic_category().message(error_);
}

void FileWriter::Discard() {
    if (!file_) return;
    std::fclose(std::exchange(file_, nullptr));
    std::remove(temporary_.c_str());
}

bool WriteFileWhole(std::string_view path, std::string_view content, std::string* error) {
    FileWriter writer;
    const bool written = writer.Open(path) && writer.Write(content) && writer.Commit();
    if (!written && error) *error = writer.Error();
    return written;
}

}  // namespace kv
