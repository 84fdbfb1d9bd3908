// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_ground.h"

#include "platform/files.h"
#include "platform/text_encoding.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

void failUnexpected(const Question &question)
{
    const QString message =
        question.kind + u" was not expected: "_s + question.title + u" / "_s + question.text;
    QTest::qFail(qPrintable(message), __FILE__, __LINE__);
}

} // namespace

template <typename A> A QueuedBoxes::answer(const Question &question, Answers<A> &answers, const A &otherwise)
{
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
           words_.isEmpty();
}

Boxes::Answer QueuedBoxes::plainBox(Icon icon, const QString &title, const QString &text, Buttons buttons)
{
    const Answer otherwise = buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    return answer({u"plainBox"_s, title, text, {}, static_cast<int>(icon)}, plain_, otherwise);
}

int QueuedBoxes::ShowMBox(const QString &prompt, bool show, int buttons, const QString &title,
                          const QString &style)
{
    return show ? answer({u"ShowMBox"_s, title, prompt, style, buttons}, pressed_, 1) : 0;
}

int QueuedBoxes::ShowInfoBox(const QString &prompt, const QString &style, const QString &title)
{
    return answer({u"ShowInfoBox"_s, title, prompt, style, 0}, notices_, 0);
}

QString QueuedBoxes::ShowIBox(const QString &prompt, int kind, const QString &defaultText,
                              const QString &title, int, int)
{
    return answer({u"ShowIBox"_s, title, prompt, defaultText, kind}, typed_, QString());
}

QString QueuedBoxes::ShowWordBox(const QString &prompt, int kind, const QString &defaultText,
                                 const QString &title, int, int)
{
    return answer({u"ShowWordBox"_s, title, prompt, defaultText, kind}, words_, QString());
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
                                    const QString &, const QString &)
{
    asked.append({u"saveFile"_s, title, filter, folder, 0});
    if (const std::optional<QString> given = saved_.take())
        return *given;
    ++unexpected;
    failUnexpected(asked.last());
    return {};
}

TestGround::TestGround(quint64 seed)
    : AppFolder(storedPath(folder.path()) + u'\\')
    , rnd(seed)
    , options(store, AppFolder, log)
    , ground{AppFolder, log, boxes, fileDialogs, rnd, sound, clock, pump, store, options}
{}

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
