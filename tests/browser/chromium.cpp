// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/chromium.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>
#include <QtTest>

#include <array>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 30000; ///< milliseconds for one answer
// The ends of the pipes in the browser, as its protocol has them.
constexpr int itsInput = 3;
constexpr int itsOutput = 4;
constexpr int outOfTheWay = 10;

} // namespace

Chromium::Chromium()
{
    std::array<int, 2> to{};
    std::array<int, 2> from{};
    if (pipe2(to.data(), O_CLOEXEC) != 0 || pipe2(from.data(), O_CLOEXEC) != 0)
        qFatal("no pipes");
    toBrowser_ = to[1];
    fromBrowser_ = from[0];
    process_.setChildProcessModifier([in = to[0], out = from[1]] {
        const int input = fcntl(in, F_DUPFD, outOfTheWay);
        const int output = fcntl(out, F_DUPFD, outOfTheWay);
        dup2(input, itsInput);
        dup2(output, itsOutput);
        close(input);
        close(output);
    });
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, home_.path());
    process_.setProcessEnvironment(environment);
    process_.setStandardErrorFile(QProcess::nullDevice());
    process_.start(u"chromium"_s,
                   {u"--headless=new"_s, u"--no-sandbox"_s, u"--disable-gpu"_s, u"--no-first-run"_s,
                    u"--disable-dev-shm-usage"_s, u"--remote-debugging-pipe"_s, u"--window-size=1000,700"_s,
                    u"--user-data-dir="_s + home_.filePath(u"profile"_s), u"about:blank"_s});
    const bool started = process_.waitForStarted();
    close(to[0]);
    close(from[1]);
    if (!started) {
        QTest::qFail("chromium does not start", __FILE__, __LINE__);
        return;
    }
    const QString target =
        call(u"Target.createTarget"_s, {{u"url"_s, u"about:blank"_s}})[u"targetId"_s].toString();
    session_ = call(u"Target.attachToTarget"_s, {{u"targetId"_s, target}, {u"flatten"_s, true}})
                   .value(u"sessionId"_s)
                   .toString();
    for (const QString &domain : {u"Page"_s, u"Runtime"_s, u"Log"_s, u"Network"_s})
        call(domain + u".enable"_s);
}

Chromium::~Chromium()
{
    close(toBrowser_);
    close(fromBrowser_);
    process_.terminate();
    if (!process_.waitForFinished(5000)) {
        process_.kill();
        process_.waitForFinished(5000);
    }
}

/// The next message, or an empty one if none came in time.
QJsonObject Chromium::read()
{
    qsizetype end = pending_.indexOf('\0');
    while (end < 0) {
        pollfd ready{fromBrowser_, POLLIN, 0};
        std::array<char, 65536> bytes{};
        const ssize_t count =
            poll(&ready, 1, patience) > 0 ? ::read(fromBrowser_, bytes.data(), bytes.size()) : 0;
        if (count <= 0)
            return {};
        end = pending_.size();
        pending_.append(bytes.data(), count);
        end = pending_.indexOf('\0', end);
    }
    const QJsonObject message = QJsonDocument::fromJson(pending_.first(end)).object();
    pending_.remove(0, end + 1);
    return message;
}

void Chromium::note(const QJsonObject &event)
{
    const QString method = event[u"method"_s].toString();
    const QJsonObject what = event[u"params"_s].toObject();
    if (method == u"Runtime.exceptionThrown"_s || method == u"Log.entryAdded"_s ||
        method == u"Runtime.consoleAPICalled"_s || method == u"Page.javascriptDialogOpening"_s)
        complaints << QString::fromUtf8(QJsonDocument(what).toJson(QJsonDocument::Compact));
    else if (method == u"Network.requestWillBeSent"_s)
        requests << what[u"request"_s][u"url"_s].toString();
    else if (method == u"Page.loadEventFired"_s)
        loaded_ = true;
}

QJsonObject Chromium::call(const QString &method, const QJsonObject &parameters)
{
    QJsonObject request{{u"id"_s, ++lastId_}, {u"method"_s, method}, {u"params"_s, parameters}};
    if (!session_.isEmpty())
        request[u"sessionId"_s] = session_;
    const QByteArray bytes = QJsonDocument(request).toJson(QJsonDocument::Compact) + '\0';
    if (write(toBrowser_, bytes.constData(), static_cast<size_t>(bytes.size())) != bytes.size())
        QTest::qFail("chromium has gone", __FILE__, __LINE__);
    for (QJsonObject message = read(); !message.isEmpty(); message = read()) {
        if (message[u"id"_s].toInt() != lastId_) {
            note(message);
            continue;
        }
        if (message.contains(u"error"_s))
            QTest::qFail(qPrintable(method + u": "_s + message[u"error"_s][u"message"_s].toString()),
                         __FILE__, __LINE__);
        return message[u"result"_s].toObject();
    }
    QTest::qFail(qPrintable(method + u": no answer"_s), __FILE__, __LINE__);
    return {};
}

void Chromium::open(const QString &path)
{
    loaded_ = false;
    requests.clear();
    call(u"Page.navigate"_s, {{u"url"_s, QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)}});
    while (!loaded_) {
        const QJsonObject message = read();
        if (message.isEmpty()) {
            QTest::qFail("the page is not loaded", __FILE__, __LINE__);
            return;
        }
        note(message);
    }
}

QString Chromium::value(const QString &expression)
{
    const QJsonObject result =
        call(u"Runtime.evaluate"_s,
             {{u"expression"_s, u"String("_s + expression + u')'}, {u"returnByValue"_s, true}});
    return result[u"result"_s][u"value"_s].toString();
}

QImage Chromium::picture()
{
    const QJsonObject result = call(u"Page.captureScreenshot"_s);
    return QImage::fromData(QByteArray::fromBase64(result[u"data"_s].toString().toLatin1()));
}

void Chromium::mouse(const QString &type, QPoint at)
{
    call(u"Input.dispatchMouseEvent"_s, {{u"type"_s, type},
                                         {u"x"_s, at.x()},
                                         {u"y"_s, at.y()},
                                         {u"button"_s, u"left"_s},
                                         {u"clickCount"_s, 1}});
}

void Chromium::touch(const QString &type, const QList<QPoint> &fingers)
{
    QJsonArray points;
    for (qsizetype i = 0; i < fingers.size(); ++i)
        points.append(QJsonObject{{u"x"_s, fingers[i].x()}, {u"y"_s, fingers[i].y()}, {u"id"_s, i}});
    call(u"Input.dispatchTouchEvent"_s, {{u"type"_s, type}, {u"touchPoints"_s, points}});
}

void Chromium::key(const QString &name, int modifiers)
{
    for (const QString &type : {u"keyDown"_s, u"keyUp"_s})
        call(u"Input.dispatchKeyEvent"_s, {{u"type"_s, type}, {u"key"_s, name}, {u"modifiers"_s, modifiers}});
}
