#include "services_pg/many_users.h"

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "frame/kvcom/exception.h"
#include "frame/module.h"
#include "pickers/abe_bar.h"
#include "pickers/abe_bar_ids.h"
#include "qualifiers/list_sel.h"
#include "qualifiers/list_sel_ids.h"
#include "services/kvdbkvn/session_pool.h"
#include "support/postgres_database.h"
#include "window/acting/headless_desktop.h"
#include "window/frames/frame_wnd.h"
#include "window/window_system.h"
#include "workbench/records/well_comments.h"

namespace test {
namespace {

using Clock = std::chrono::steady_clock;

/// As the area box lists them at first, by MMS code.
constexpr std::array kAreas = {"GC", "WC", "MC", "EI", "EB", "HI"};
/// Everybody comments on the same ones.
constexpr int kWells = 3;

constexpr const char* kNoComments =
    "drop table if exists norvadon.gulf_mexico_well_comment;"
    "create table norvadon.gulf_mexico_well_comment (id varchar(20) not null, rec_seq numeric not "
    "null, comments varchar(80), user_id varchar(20), revision_date timestamp, "
    "primary key (id, rec_seq))";

/// As long as a comment may be, so that half of one shows.
std::string Comment(int process, int number) {
    std::string text = std::to_string(process) + "/" + std::to_string(number) + " ";
    while (text.size() < workbench::well_comments::kMostText)
        text += static_cast<char>('a' + text.size() % 26);
    return text;
}

/// One of the processes: a person at the bar.
class Person {
public:
    explicit Person(int number) : number_(number) {
        InitControlDll();
        kv::WindowSystem::Get().SetDesktop(&desktop_);
        app_.m_pMainWnd = &frame_;
        frame_.Create("Host");
        frame_.ShowWindow(SW_SHOW);
        bar_.Create(&frame_, kv::abe_bar::kTemplate, CBRS_TOP, kv::abe_bar::kTemplate);
        kv::WindowSystem::Get().Settle();
        user_ = std::make_unique<kv::User>(
            *bar_.m_hWnd, [this](const std::string& words) { desktop_.Fail(words); });
        user_->Drop(kv::abe_bar::kArea);
        user_->Drop(kv::abe_bar::kArea);
        const workbench::Rows wells(
            "select api_no from NORVADON.gulf_mexico_well_hdr where areacode = '43113' order by "
            "api_no");
        for (int row = 0; row < kWells; ++row)
            wells_.emplace_back(wells.Cell(row, 0));
    }
    ~Person() { kv::WindowSystem::Get().SetDesktop(nullptr); }
    Person(const Person&) = delete;
    Person& operator=(const Person&) = delete;

    void WorkUntil(Clock::time_point end) {
        for (int turn = number_; Clock::now() < end; ++turn) {
            Pick(kAreas[static_cast<std::size_t>(turn) % kAreas.size()], turn);
            if (turn % 3 == 0) Search();
            workbench::well_comments::Add(wells_[static_cast<std::size_t>(turn) % kWells],
                                          Comment(number_, ++comments_), "tester");
        }
    }
    /// A line for each thing that the parent reads.
    std::string Report() const {
        return told_.str() + "searches " + std::to_string(searches_) + "\ncomments " +
               std::to_string(comments_) + "\n";
    }

private:
    void Pick(const std::string& area, int turn) {
        const auto begin = Clock::now();
        user_->Select(kv::abe_bar::kArea, area);
        const auto blocks = static_cast<int>(user_->Rows(kv::abe_bar::kBlock).size());
        user_->Select(kv::abe_bar::kBlock, turn % std::max(blocks, 1));
        if (bar_.GetAreacode(true).empty()) told_ << "fault " << area << " has no code\n";
        const std::chrono::duration<double> taken = Clock::now() - begin;
        told_ << "pick " << taken.count() << "\n";
        ExpectAsBefore(area, blocks);
    }
    void Search() {
        std::vector<std::string> values;
        CKvGuiListSel dialog("lessee", "NORVADON.gulf_mexico_lease", nullptr, values,
                             kv::list_sel::kTemplate, nullptr);
        desktop_.ExpectWindow("CKvGuiListSel", [&](kv::User& user) {
            user.Click(kv::list_sel::kSearch);
            ExpectAsBefore("lessees", static_cast<int>(user.Rows(kv::list_sel::kAvailable).size()));
            user.Click(IDCANCEL);
        });
        dialog.DoModal();
        ++searches_;
    }
    void ExpectAsBefore(const std::string& what, int rows) {
        const int before = rows_.emplace(what, rows).first->second;
        if (rows == 0 || rows != before)
            told_ << "fault " << rows << " rows of " << what << ", " << before << " before\n";
    }

    int number_;
    kv::HeadlessDesktop desktop_;
    CWinApp app_;
    CFrameWnd frame_;
    CVZABEBar bar_;
    std::unique_ptr<kv::User> user_;
    std::vector<std::string> wells_;
    std::map<std::string, int> rows_;
    std::ostringstream told_;
    int searches_ = 0;
    int comments_ = 0;
};

/// What a process tells in the end.
std::string WorkAlone(const std::string& url, int number, Clock::time_point end) {
    CKvDbInfo info("", "", url.c_str());
    CKvDbAbsDataMgr(KV_CONNECT_DEFAULT).SetDbInfo(info);
    try {
        Person person(number);
        person.WorkUntil(end);
        return person.Report() + "sessions " +
               std::to_string(kv::db::SessionPool::Instance().Idle()) + "\n";
    } catch (const std::exception& failure) {
        return std::string("fault ") + failure.what() + "\n";
    }
}

/// A process that works, tells, and then stands still, its sessions open, until it is ended.
class Process {
public:
    Process(const std::string& url, int number, Clock::time_point end) {
        std::array<int, 2> told{};
        if (pipe(told.data()) != 0 || (id_ = fork()) < 0)
            throw std::runtime_error(std::string("No more processes: ") + std::strerror(errno));
        if (id_ == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            const std::string report = WorkAlone(url, number, end) + "end\n";
            const ssize_t written = write(told[1], report.data(), report.size());
            while (written == static_cast<ssize_t>(report.size()))
                pause();
            _exit(1);
        }
        close(told[1]);
        told_ = told[0];
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process() {
        kill(id_, SIGKILL);
        waitpid(id_, nullptr, 0);
        close(told_);
    }

    /// All that it tells. Whoever does not come to the end has died.
    std::string Told() const {
        std::string told;
        std::array<char, 65536> part{};
        while (!told.ends_with("end\n")) {
            const ssize_t count = read(told_, part.data(), part.size());
            if (count <= 0) return told + "fault The process ended\n";
            told.append(part.data(), static_cast<std::size_t>(count));
        }
        return told;
    }

private:
    pid_t id_ = 0;
    int told_ = -1;
};

/// Adds what a process tells. Answers how many sessions it holds.
int Take(const std::string& told, int process, ManyUsers& all, std::vector<std::string>& comments) {
    int sessions = 0;
    std::istringstream lines(told);
    for (std::string word, rest; lines >> word && std::getline(lines >> std::ws, rest);) {
        if (word == "pick") all.picks.push_back(std::atof(rest.c_str()));
        if (word == "searches") all.searches += std::atoi(rest.c_str());
        if (word == "sessions") sessions = std::atoi(rest.c_str());
        if (word == "fault") all.faults.push_back(std::to_string(process) + ": " + rest);
        if (word != "comments") continue;
        for (int number = 1; number <= std::atoi(rest.c_str()); ++number)
            comments.push_back(Comment(process, number));
    }
    return sessions;
}

std::string Joined(const std::vector<std::string>& texts) {
    std::string joined;
    for (const std::string& text : texts)
        joined += (&text == texts.data() ? "" : "\n") + text;
    return joined;
}

void LookAtServer(PostgresClient& client, int sessions, std::vector<std::string> comments,
                  ManyUsers& all) {
    std::ranges::sort(comments);
    const auto expect = [&](const std::string& sql, const std::string& expected,
                            const char* fault) {
        if (client.Run(sql) != expected) all.faults.emplace_back(fault);
    };
    expect(
        "select string_agg(comments, chr(10) order by comments collate \"C\") from "
        "norvadon.gulf_mexico_well_comment",
        Joined(comments), "comments are lost or torn");
    expect(
        "select count(*) from (select 1 from norvadon.gulf_mexico_well_comment group by id "
        "having count(*) <> max(rec_seq)) gaps",
        "0", "the comments on a well are not numbered through");
    std::ranges::copy(FaultsOfSessions(client, sessions), std::back_inserter(all.faults));
}

}  // namespace

std::vector<std::string> FaultsOfSessions(PostgresClient& client, int open) {
    const std::string ofOthers =
        " from pg_stat_activity where datname = current_database() and pid <> pg_backend_pid() "
        "and backend_type = 'client backend'";
    std::vector<std::string> faults;
    const std::string within = client.Run("select string_agg(state || ', ' || query, '; ')" +
                                          ofOthers + " and state <> 'idle'");
    if (!within.empty()) faults.push_back("a session was left within a transaction: " + within);
    const std::string found = client.Run("select count(*)" + ofOthers);
    if (found != std::to_string(open))
        faults.push_back("a session was not given back to its pool: " + found + " are open, " +
                         std::to_string(open) + " in pools");
    return faults;
}

double ManyUsers::Percentile95() const {
    return picks.empty() ? 0 : picks[(picks.size() - 1) * 19 / 20];
}

ManyUsers WorkAtOnce(const std::string& url, int processes, std::chrono::milliseconds time) {
    ManyUsers all;
    std::vector<std::string> comments;
    int sessions = 0;
    PostgresClient client(url);
    client.Run(kNoComments);
    const auto end = Clock::now() + time;
    std::vector<std::unique_ptr<Process>> running;
    for (int number = 1; number <= processes; ++number)
        running.push_back(std::make_unique<Process>(url, number, end));
    for (int number = 1; number <= processes; ++number) {
        const std::string told = running[static_cast<std::size_t>(number) - 1]->Told();
        sessions += Take(told, number, all, comments);
    }
    LookAtServer(client, sessions, comments, all);
    all.comments = static_cast<int>(comments.size());
    std::ranges::sort(all.picks);
    return all;
}

}  // namespace test
