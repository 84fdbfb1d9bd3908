// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/file_dialogs.h"
#include "platform/gate.h"
#include "platform/gated_boxes.h"
#include "platform/ground.h"
#include "platform/log.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/rnd.h"
#include "platform/settings_store.h"
#include "platform/sound.h"
#include "platform/system_printer.h"

#include <QHash>
#include <QList>
#include <QQueue>
#include <QTemporaryDir>

#include <functional>
#include <optional>

/// What a box or a file dialog was asked.
struct Question
{
    QString kind; ///< the seam's function: "plainBox", "ShowMBox", "openFiles", ...
    QString title;
    QString text;  ///< the prompt; of a file dialog the filter
    QString style; ///< of a box the style, of a box for input the default text, of a file dialog the folder
    int code = 0;  ///< the icon, the buttons' code or the kind of tile
};

/// Answers of one seam: queued by the test, taken by the program. A question without an answer fails the
/// running test.
template <typename Answer> class Answers
{
public:
    void add(const Answer &answer) { queue_.enqueue(answer); }
    bool isEmpty() const { return queue_.isEmpty(); }
    std::optional<Answer> take()
    {
        return queue_.isEmpty() ? std::nullopt : std::optional<Answer>(queue_.dequeue());
    }

private:
    QQueue<Answer> queue_;
};

/// The boxes of a test. `will...` queues an answer; `asked` holds every question in its order.
class QueuedBoxes : public Boxes
{
public:
    void willAnswer(Answer answer) { plain_.add(answer); }
    /// The index of the button that `ShowMBox` gives.
    void willPress(int button) { pressed_.add(button); }
    /// The notice box is closed, by default with Enter.
    void willBeRead(int result = 0) { notices_.add(result); }
    void willType(const QString &text) { typed_.add(text); }
    void willTypeWord(const QString &text) { words_.add(text); }
    void willEnterName(const QString &name) { names_.add(name); }
    /// The list of the best is closed.
    void willCloseScores() { scores_.add(true); }

    QList<Question> asked;
    int unexpected = 0;
    /// Title and text of the last box, or nothing.
    QString told() const
    {
        return asked.isEmpty() ? QString() : asked.last().title + u'|' + asked.last().text;
    }
    /// Called before a box gives its answer: a test may look at the window, or act while the box is open.
    std::function<void(const Question &)> whileOpen;

    bool allTaken() const;

    Answer plainBox(Icon icon, const QString &title, const QString &text, Buttons buttons) override;
    int ShowMBox(const QString &prompt, bool show, int buttons, const QString &title,
                 BoxStyle style) override;
    int ShowInfoBox(const QString &prompt, BoxSign sign, const QString &title) override;
    QString ShowIBox(const QString &prompt, BoxStyle kind, const QString &defaultText, const QString &title,
                     int left, int top) override;
    QString ShowWordBox(const QString &prompt, BoxStyle kind, const QString &defaultText,
                        const QString &title, int left, int top) override;
    QString ShowEnterName(const QString &title) override;
    /// Its question has the heading as style, and as text the result and the rows, one a line.
    void ShowHighScores(const HighScoreSheet &sheet) override;
    void ShowBestTimes(const HighScoreSheet &sheet) override;

private:
    void showList(const QString &kind, const HighScoreSheet &sheet);
    template <typename A> A answer(const Question &question, Answers<A> &answers, const A &otherwise);

    Answers<Answer> plain_;
    Answers<int> pressed_;
    Answers<int> notices_;
    Answers<QString> typed_;
    Answers<QString> words_;
    Answers<QString> names_;
    Answers<bool> scores_;
};

/// The file dialogs of a test. An empty answer is a cancelled dialog.
class QueuedFileDialogs : public FileDialogs
{
public:
    void willOpen(const QStringList &paths) { opened_.add(paths); }
    void willSave(const QString &path) { saved_.add(path); }
    void willChoose(std::optional<Colour> colour) { colours_.add(colour); }

    QList<Question> asked;
    SaveHints lastHints;
    int unexpected = 0;

    bool allTaken() const { return opened_.isEmpty() && saved_.isEmpty() && colours_.isEmpty(); }

    QStringList openFiles(const QString &title, const QString &folder, const QString &filter,
                          bool multiple) override;
    QString saveFile(const QString &title, const QString &folder, const QString &filter,
                     const QString &suffix, const SaveHints &hints) override;
    std::optional<Colour> chooseColour(const QString &title, Colour present) override;

private:
    Answers<QStringList> opened_;
    Answers<QString> saved_;
    Answers<std::optional<Colour>> colours_;
};

/// The printer of a test: each document becomes the next PDF file, "seiten1.pdf" and so on.
class PrinterOfPdf : public Printer
{
public:
    explicit PrinterOfPdf(const QString &folder)
        : folder_(folder)
    {}

    QString standard = QStringLiteral("Klasse 3"); ///< empty: there is no printer
    bool vanishes = false;                         ///< between the question for it and the first page
    QList<PrintJob> jobs;

    QStringList names() const override { return standard.isEmpty() ? QStringList() : QStringList{standard}; }
    QString defaultName() const override { return standard; }
    std::unique_ptr<PrintedDocument> begin(const PrintJob &job) override;
    QString file(qsizetype number) const { return folder_ + QStringLiteral("seiten%1.pdf").arg(number); }

private:
    SystemPrinter system_;
    QString folder_;
};

/// Keeps what would have been heard.
class RecordedSound : public Sound
{
public:
    QList<int> resources;
    QStringList files;
    bool filesCanBePlayed = true;

    void PlayResourceSound(int id) override { resources.append(id); }
    bool playFile(const QString &path) override
    {
        files.append(path);
        return filesCanBePlayed;
    }
};

/// A clock that stands until a wait or the test moves it on.
class TestClock : public Clock
{
public:
    explicit TestClock(Gate &gate)
        : gate_(gate)
    {}

    QDateTime moment{QDate(2026, 3, 14), QTime(9, 26, 53)};
    int waited = 0; ///< milliseconds, all waits together

    QDateTime now() const override { return moment; }
    qint64 elapsed() const override { return moment.toMSecsSinceEpoch(); }
    void wait(int milliseconds) override;

private:
    Gate &gate_;
};

/// Counts yields, and lets a test act in them as a user would. A yield in the middle of one of Qt's own walks
/// fails the test.
class TestPump : public EventPump
{
public:
    explicit TestPump(Gate &gate)
        : gate_(gate)
    {}

    int yields = 0; ///< of both kinds
    bool waiting = false;
    std::function<void()> onYield; ///< in both kinds
    std::function<void()> onServe; ///< only where a hand's input is let in

    void yield() override;
    void serve() override;
    bool inputWaiting() override { return waiting; }

private:
    Gate &gate_;
};

/// Settings in memory.
class MemoryStore : public SettingsStore
{
public:
    QString GetSetting(const QString &section, const QString &key, const QString &fallback) const override
    {
        return values_.value({section, key}, fallback);
    }
    void SaveSetting(const QString &section, const QString &key, const QString &value) override
    {
        values_[{section, key}] = value;
    }

private:
    QHash<std::pair<QString, QString>, QString> values_;
};

/// A whole ground for one test: an empty program folder that goes with the test, a fixed seed, and seams that
/// answer from queues. A question that the test did not expect fails it, and so does an answer that nobody
/// has asked for when the ground goes.
struct TestGround
{
    explicit TestGround(quint64 seed = 1);
    ~TestGround();
    Q_DISABLE_COPY_MOVE(TestGround)

    QTemporaryDir folder;
    QString AppFolder; ///< stored form
    Log log;
    Gate gate;
    QueuedBoxes boxes;
    QueuedFileDialogs fileDialogs;
    PrinterOfPdf printer{AppFolder};
    Rnd rnd;
    RecordedSound sound;
    TestClock clock{gate};
    TestPump pump{gate};
    MemoryStore store;
    Options options;
    Notes notes;
    QStringList told; ///< the notes in their order
    GatedBoxes gatedBoxes{boxes, gate};
    GatedFileDialogs gatedDialogs{fileDialogs, gate};
    Ground ground;

    /// True where the test answers whatever may come.
    bool mayLeaveAnswers = false;
    /// No question was unexpected and no answer is left.
    bool ok() const;
    /// Writes a file below the program's folder (`name` in stored form), with its folders, in Windows-1252,
    /// and returns its stored path.
    QString writeFile(const QString &name, const QString &text) const;
};
