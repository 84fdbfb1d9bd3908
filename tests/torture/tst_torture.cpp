// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/settings_file.h"
#include "support/file_bytes.h"
#include "support/test_class.h"

#include <future>
#include <optional>
#include <random>

namespace {

constexpr int lanes = 2;
constexpr int runsInLane = 105;
constexpr int patienceMs = 30000; ///< for one start on a busy machine

struct Result
{
    int runs = 0;
    int killedInStart = 0;
    int killedInCommit = 0;
    int recoveries = 0;
    int gotLast = 0;
    int gotLastButOne = 0;
    int leftOvers = 0;
    qint64 commits = 0;
    QString fault;

    void add(const Result &other)
    {
        runs += other.runs;
        killedInStart += other.killedInStart;
        killedInCommit += other.killedInCommit;
        recoveries += other.recoveries;
        gotLast += other.gotLast;
        gotLastButOne += other.gotLastButOne;
        leftOvers += other.leftOvers;
        commits += other.commits;
        if (fault.isEmpty())
            fault = other.fault;
    }
};

/// One program folder, in which run after run is started, killed, and started again.
class Lane
{
public:
    explicit Lane(unsigned seed)
        : seed_(seed)
        , random_(seed)
    {
        layFiles();
    }

    Result torment()
    {
        for (int run = 0; run < runsInLane && result_.fault.isEmpty(); ++run) {
            // Every fourth is killed anywhere in its start, the others at play.
            runOnce(run % 4 == 3 ? below(lastStartMs_) : std::optional<int>());
            ++result_.runs;
        }
        if (result_.fault.isEmpty())
            runOnce({}); // looks at what the last kill has left
        return result_;
    }

private:
    int below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(std::max(1, bound))); }

    void layFiles() const
    {
        QByteArray words;
        for (char first = 'a'; first <= 'z'; ++first)
            words += QByteArray(1, first) + "xt\r\n";
        for (const auto *name :
             {"text/Hauptbausteine.Txt", "facit/Hauptbausteine.lex", "affix/prefix.afx", "affix/suffix.afx",
              "text kurz lang/langer Stammvokal.Txt", "text kurz lang/kurzer Stammvokal.Txt"})
            putBytes(folder_.filePath(QString::fromLatin1(name)), words);
        QFile::copy(QStringLiteral(WORTEL_SOURCE_DIR "/data/lextip.ini"), folder_.filePath(u"lextip.ini"_s));
        SettingsFile(folder_.filePath(u"settings.ini"_s))
            .SaveSettings(u"Settings"_s, {{u"UseBackup"_s, u"1"_s},
                                          {u"NumWortel"_s, u"8"_s},
                                          {u"FillAffix"_s, u"0"_s},
                                          {u"MaxTriesToPlace"_s, u"1"_s},
                                          {u"ShowWelcomeMsg"_s, u"0"_s}});
    }

    /// Starts the player and kills it after `killAfterMs`, or at a random instant after it has begun to play.
    void runOnce(std::optional<int> killAfterMs)
    {
        QProcess player;
        player.setProcessChannelMode(QProcess::ForwardedChannels);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_RUNTIME_DIR"_s, folder_.path());
        player.setProcessEnvironment(environment);
        QElapsedTimer time;
        time.start();
        player.start(QCoreApplication::applicationDirPath() + u"/torture_player"_s,
                     {folder_.path(), journal(), QString::number(random_())});
        if (!player.waitForStarted(patienceMs)) {
            result_.fault = u"the player does not start"_s;
            return;
        }
        if (killAfterMs) {
            QThread::usleep(static_cast<unsigned long>(*killAfterMs) * 1000 + random_() % 1000);
        } else {
            while (!hasBegun() && player.state() != QProcess::NotRunning && !time.hasExpired(patienceMs))
                player.waitForFinished(2);
            lastStartMs_ = static_cast<int>(time.elapsed());
            // Shortly behind the start the first commit is under way; later, undo and sessions come into
            // play.
            QThread::usleep(random_() % (random_() % 2 == 0 ? 60000 : 400000));
        }
        player.kill();
        player.waitForFinished(patienceMs);
        if (player.exitStatus() != QProcess::CrashExit) {
            result_.fault = u"the player ended by itself with %1"_s.arg(player.exitCode());
            return;
        }
        readJournal(!killAfterMs);
        const QStringList halves =
            QDir(folder_.path()).entryList({u".wortel-*.tmp"_s}, QDir::Files | QDir::Hidden);
        result_.leftOvers += static_cast<int>(halves.size());
        if (halves.size() > 1)
            fail(u"left-over files pile up"_s);
    }

    QString journal() const { return folder_.filePath(u"journal"_s); }

    QByteArray news() const
    {
        QFile file(journal());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        file.seek(read_);
        return file.readAll();
    }
    bool hasBegun() const
    {
        const QByteArray lines = news();
        return lines.startsWith("R ") || lines.startsWith("N ") || lines.startsWith("E ");
    }

    /// Walks through what the killed run has noted. A line that the kill has cut short was never written.
    void readJournal(bool mustHaveBegun)
    {
        QByteArray lines = news();
        read_ += lines.size();
        if (!lines.isEmpty() && !lines.endsWith('\n')) {
            putBytes(journal(), {});
            read_ = 0;
            lines.truncate(lines.lastIndexOf('\n') + 1);
        }
        bool begun = false;
        bool inCommit = false;
        for (const QByteArray &line : lines.split('\n')) {
            if (line.isEmpty())
                continue;
            const QString text = QString::fromUtf8(QByteArray::fromBase64(line.mid(2)));
            inCommit = line.front() == 'I';
            switch (line.front()) {
            case 'N':
                begun = true;
                if (committed_)
                    fail(u"the backup is gone"_s);
                break;
            case 'R':
                begun = true;
                compare(text);
                break;
            case 'I':
                pending_ = text;
                break;
            case 'D':
                if (pending_)
                    committed_ = std::exchange(pending_, std::nullopt);
                ++result_.commits;
                break;
            default:
                fail(u"the program told: "_s + text);
            }
        }
        if (!begun && mustHaveBegun)
            fail(u"a start did not end"_s);
        result_.killedInStart += begun ? 0 : 1;
        result_.killedInCommit += inCommit ? 1 : 0;
    }

    /// A change that was being backed up may be there or not; one that had been must be there.
    void compare(const QString &board)
    {
        ++result_.recoveries;
        if (pending_ && board == *pending_)
            ++result_.gotLast;
        else if (committed_ && board == *committed_)
            ++(pending_ ? result_.gotLastButOne : result_.gotLast);
        else
            fail(u"recovered\n%1\nbut committed was\n%2\nand under way\n%3"_s.arg(
                board, committed_.value_or(u"(none)"_s), pending_.value_or(u"(none)"_s)));
        committed_ = board;
        pending_.reset();
    }

    void fail(const QString &what)
    {
        if (result_.fault.isEmpty())
            result_.fault = u"seed %1, run %2: %3"_s.arg(seed_).arg(result_.runs).arg(what);
    }

    unsigned seed_;
    std::mt19937 random_;
    QTemporaryDir folder_;
    Result result_;
    qint64 read_ = 0; ///< of the journal, in bytes
    int lastStartMs_ = 300;
    std::optional<QString> committed_; ///< the board of the last change whose backup was done
    std::optional<QString> pending_;   ///< the board of a change whose backup had begun
};

} // namespace

class TortureTest : public QObject
{
    Q_OBJECT

private slots:
    /// The board outlives every kill: what a restart recovers is the board after the last commit, or after
    /// the last but one if the kill fell into the last.
    void everyKillIsSurvived()
    {
        const unsigned seed = QRandomGenerator::system()->generate();
        QElapsedTimer time;
        time.start();
        std::vector<std::future<Result>> running;
        for (unsigned lane = 0; lane < lanes; ++lane)
            running.push_back(
                std::async(std::launch::async, [seed, lane] { return Lane(seed + lane).torment(); }));
        Result all;
        for (std::future<Result> &lane : running)
            all.add(lane.get());

        qInfo().noquote() << u"%1 runs killed (%2 in the start, %3 in a commit) among %4 commits in %5 s; %6 "
                             u"recoveries: %7 "
                             "gave the last commit, %8 the last but one; %9 left-over files, one at a time"_s
                                 .arg(all.runs)
                                 .arg(all.killedInStart)
                                 .arg(all.killedInCommit)
                                 .arg(all.commits)
                                 .arg(time.elapsed() / 1000)
                                 .arg(all.recoveries)
                                 .arg(all.gotLast)
                                 .arg(all.gotLastButOne)
                                 .arg(all.leftOvers);
        QVERIFY2(all.fault.isEmpty(), qPrintable(all.fault));
        QVERIFY(all.runs >= 200);
        QVERIFY(all.recoveries > all.runs / 4);
        QVERIFY(all.killedInCommit > 0); // the instants were telling
    }
};

WORTEL_TEST(TortureTest)
#include "tst_torture.moc"
