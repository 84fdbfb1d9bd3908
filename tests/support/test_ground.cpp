// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_ground.h"

#include "platform/files.h"
#include "platform/runtime_error.h"
#include "platform/text_encoding.h"
#include "support/watchful_application.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

QString wordOf(BoxStyle style)
{
    static const QStringList words{{},           u"PREFIX"_s, u"WORTEL"_s, u"SUFFIX"_s,
                                   u"HISCORE"_s, u"RETYPE"_s, u"CONFIRM"_s};
    return words.at(static_cast<int>(style));
}

QString wordOf(BoxSign sign)
{
    return QStringList{{}, u"SMILEY"_s, u"WRITE"_s, u"INFO"_s}.at(static_cast<int>(sign));
}

void failUnexpected(const Question &question)
{
    const QString message =
        question.kind + u" was not expected: "_s + question.title + u" / "_s + question.text;
    QTest::qFail(qPrintable(message), __FILE__, __LINE__);
}

} // namespace

/// Nothing may let events run, or open a box, from within one of Qt's own walks.
static void failInWalk(const char *what)
{
    if (const QString walk = WatchfulApplication::walk(); !walk.isEmpty())
        QTest::qFail(qPrintable(u"%1 within %2"_s.arg(QLatin1String(what), walk)), __FILE__, __LINE__);
}

void TestClock::wait(int milliseconds)
{
    failInWalk("a wait");
    const Gate::Passage passage = gate_.stay();
    waited += milliseconds;
    moment = moment.addMSecs(milliseconds);
}

void TestPump::yield()
{
    failInWalk("a yield");
    ++yields;
    const Gate::Passage passage = gate_.stay();
    if (onYield)
        onYield();
}

void TestPump::serve()
{
    failInWalk("a yield");
    ++yields;
    const Gate::Passage passage = gate_.stay();
    if (onYield)
        onYield();
    if (onServe)
        onServe();
}

template <typename A> A QueuedBoxes::answer(const Question &question, Answers<A> &answers, const A &otherwise)
{
    failInWalk("a box");
    asked.append(question);
    const std::optional<A> given = answers.take();
    if (!given) {
        ++unexpected;
        failUnexpected(question);
        return otherwise;
    }
    if (whileOpen)
        whileOpen(question);
    return *given;
}

bool QueuedBoxes::allTaken() const
{
    return plain_.isEmpty() && pressed_.isEmpty() && notices_.isEmpty() && typed_.isEmpty() &&
           words_.isEmpty() && names_.isEmpty() && scores_.isEmpty();
}

Boxes::Answer QueuedBoxes::plainBox(Icon icon, const QString &title, const QString &text, Buttons buttons)
{
    const Answer otherwise = buttons == Buttons::Ok         ? Answer::Ok
                             : buttons == Buttons::OkCancel ? Answer::Cancel
                                                            : Answer::No;
    return answer({u"plainBox"_s, title, text, {}, static_cast<int>(icon)}, plain_, otherwise);
}

int QueuedBoxes::ShowMBox(const QString &prompt, bool show, int buttons, const QString &title, BoxStyle style)
{
    return show ? answer({u"ShowMBox"_s, title, prompt, wordOf(style), buttons}, pressed_, 1) : 0;
}

int QueuedBoxes::ShowInfoBox(const QString &prompt, BoxSign sign, const QString &title)
{
    return answer({u"ShowInfoBox"_s, title, prompt, wordOf(sign), 0}, notices_, 0);
}

QString QueuedBoxes::ShowIBox(const QString &prompt, BoxStyle kind, const QString &defaultText,
                              const QString &title, int, int)
{
    return answer({u"ShowIBox"_s, title, prompt, defaultText, static_cast<int>(kind)}, typed_, QString());
}

QString QueuedBoxes::ShowWordBox(const QString &prompt, BoxStyle kind, const QString &defaultText,
                                 const QString &title, int, int)
{
    return answer({u"ShowWordBox"_s, title, prompt, defaultText, static_cast<int>(kind)}, words_, QString());
}

QString QueuedBoxes::ShowEnterName(const QString &title)
{
    return answer({u"ShowEnterName"_s, title, {}, {}, 0}, names_, QString());
}

void QueuedBoxes::ShowHighScores(const HighScoreSheet &sheet) { showList(u"ShowHighScores"_s, sheet); }

void QueuedBoxes::ShowBestTimes(const HighScoreSheet &sheet) { showList(u"ShowBestTimes"_s, sheet); }

void QueuedBoxes::showList(const QString &kind, const HighScoreSheet &sheet)
{
    QStringList lines{sheet.result};
    for (const auto &[name, score] : sheet.rows)
        lines << name + u' ' + score;
    answer({kind, sheet.title, lines.join(u'\n'), sheet.heading, sheet.place}, scores_, true);
}

QStringList QueuedFileDialogs::openFiles(const QString &title, const QString &folder, const QString &filter,
                                         bool multiple)
{
    asked.append({u"openFiles"_s, title, filter, folder, multiple ? 1 : 0});
    if (const std::optional<QStringList> given = opened_.take())
        return *given;
    ++unexpected;
    failUnexpected(asked.last());
    return {};
}

QString QueuedFileDialogs::saveFile(const QString &title, const QString &folder, const QString &filter,
                                    const QString &, const SaveHints &hints)
{
    lastHints = hints;
    asked.append({u"saveFile"_s, title, filter, folder, 0});
    if (const std::optional<QString> given = saved_.take())
        return *given;
    ++unexpected;
    failUnexpected(asked.last());
    return {};
}

std::optional<Colour> QueuedFileDialogs::chooseColour(const QString &title, Colour)
{
    asked.append({u"chooseColour"_s, title, {}, {}, 0});
    if (const std::optional<std::optional<Colour>> given = colours_.take())
        return *given;
    ++unexpected;
    failUnexpected(asked.last());
    return {};
}

std::unique_ptr<PrintedDocument> PrinterOfPdf::begin(const PrintJob &job)
{
    jobs.append(job);
    if (vanishes)
        throw RuntimeError::of(RuntimeError::PrinterError);
    PrintJob toFile = job;
    if (toFile.pdfFile.isEmpty())
        toFile.pdfFile = file(jobs.size());
    return system_.begin(toFile);
}

TestGround::TestGround(quint64 seed)
    : AppFolder(storedPath(folder.path()) + u'\\')
    , rnd(seed)
    , options(store, AppFolder, log)
    , ground{AppFolder, log,  gatedBoxes, gatedDialogs, printer, rnd,  sound,
             clock,     pump, store,      options,      gate,    notes}
{
    QObject::connect(&notes, &Notes::told, &notes, [this](const QString &note) { told.append(note); });
}

TestGround::~TestGround()
{
    if (QTest::currentTestFunction() != nullptr && !ok() && !mayLeaveAnswers && !QTest::currentTestFailed())
        QTest::qFail("an answer was left that nobody asked for", __FILE__, __LINE__);
}

bool TestGround::ok() const
{
    return boxes.unexpected == 0 && fileDialogs.unexpected == 0 && boxes.allTaken() && fileDialogs.allTaken();
}

QString TestGround::writeFile(const QString &name, const QString &text) const
{
    const QString stored = AppFolder + name;
    QDir().mkpath(QFileInfo(nativePath(stored)).path());
    writeFileAtomically(stored, encodeText(text));
    return stored;
}
