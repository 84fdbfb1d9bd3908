// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QUrl>
#include <QtTest>

#include <array>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// A real browser without a window, driven over its own protocol through a pair of pipes. Every wait has an
/// end: what does not come fails the running test.
class Chromium
{
public:
    Chromium()
    {
        std::array<int, 2> to{};
        std::array<int, 2> from{};
        if (pipe2(to.data(), O_CLOEXEC) != 0 || pipe2(from.data(), O_CLOEXEC) != 0)
            qFatal("no pipes");
        toBrowser_ = to[1];
        fromBrowser_ = from[0];
        process_.setChildProcessModifier([in = to[0], out = from[1]] {
            constexpr int outOfTheWay = 10;
            const int output = fcntl(out, F_DUPFD, outOfTheWay);
            dup2(fcntl(in, F_DUPFD, outOfTheWay), 3); // where the browser reads
            dup2(output, 4);                          // and writes
        });
        process_.setStandardErrorFile(QProcess::nullDevice());
        process_.start("chromium"_L1, QString("--headless=new --no-sandbox --disable-gpu --no-first-run "
                                              "--disable-dev-shm-usage --remote-debugging-pipe "
                                              "--window-size=1000,700 about:blank --user-data-dir="_L1 +
                                              home_.path())
                                          .split(u' '));
        process_.waitForStarted();
        close(to[0]);
        close(from[1]);
        const QJsonValue target = call("Target.createTarget", {{"url"_L1, "about:blank"_L1}})["targetId"_L1];
        session_ =
            call("Target.attachToTarget", {{"targetId"_L1, target}, {"flatten"_L1, true}})["sessionId"_L1];
        for (const char *domain : {"Page.enable", "Runtime.enable", "Log.enable", "Network.enable"})
            call(domain);
    }
    ~Chromium()
    {
        close(toBrowser_);
        close(fromBrowser_);
        if (!process_.waitForFinished(3000))
            process_.kill();
        process_.waitForFinished(3000);
    }
    Q_DISABLE_COPY_MOVE(Chromium)

    /// Loads a page and waits until it is there.
    void open(const QString &path)
    {
        loaded_ = false;
        requests.clear();
        call("Page.navigate", {{"url"_L1, QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)}});
        for (int i = 0; i < 1000 && !loaded_; ++i)
            note(read());
        if (!loaded_)
            QTest::qFail("the page is not loaded", __FILE__, __LINE__);
    }
    /// The value of an expression, as text.
    QString value(const QString &expression)
    {
        return call("Runtime.evaluate",
                    {{"expression"_L1, "String("_L1 + expression + ")"_L1}})["result"_L1]["value"_L1]
            .toString();
    }
    QImage picture()
    {
        const QString data = call("Page.captureScreenshot")["data"_L1].toString();
        return QImage::fromData(QByteArray::fromBase64(data.toLatin1()));
    }
    void mouse(const QString &type, QPoint at)
    {
        call("Input.dispatchMouseEvent",
             {{"type"_L1, type}, {"x"_L1, at.x()}, {"y"_L1, at.y()}, {"button"_L1, "left"_L1}});
    }
    /// Fingers on the screen: "touchStart", "touchMove" or "touchEnd". A finger is known by its place in the
    /// list.
    void touch(const QString &type, const QList<QPoint> &fingers)
    {
        QJsonArray points;
        for (qsizetype i = 0; i < fingers.size(); ++i)
            points.append(QJsonObject{{"x"_L1, fingers[i].x()}, {"y"_L1, fingers[i].y()}, {"id"_L1, i}});
        call("Input.dispatchTouchEvent", {{"type"_L1, type}, {"touchPoints"_L1, points}});
    }
    /// `modifiers` 8 is Shift.
    void key(const QString &name, int modifiers = 0)
    {
        call("Input.dispatchKeyEvent",
             {{"type"_L1, "keyDown"_L1}, {"key"_L1, name}, {"modifiers"_L1, modifiers}});
    }

    QStringList complaints; ///< errors and words on the console
    QStringList requests;   ///< addresses that were asked for

private:
    /// The next message, or an empty one if none came in time.
    QJsonObject read()
    {
        constexpr int patience = 30000; // milliseconds
        while (!pending_.contains('\0')) {
            pollfd ready{fromBrowser_, POLLIN, 0};
            std::array<char, 65536> bytes{};
            const ssize_t count =
                poll(&ready, 1, patience) > 0 ? ::read(fromBrowser_, bytes.data(), bytes.size()) : 0;
            if (count <= 0)
                return {};
            pending_.append(bytes.data(), count);
        }
        const qsizetype end = pending_.indexOf('\0');
        const QJsonObject message = QJsonDocument::fromJson(pending_.first(end)).object();
        pending_.remove(0, end + 1);
        return message;
    }
    void note(const QJsonObject &event)
    {
        static const QStringList bad{"Runtime.exceptionThrown"_L1, "Log.entryAdded"_L1,
                                     "Runtime.consoleAPICalled"_L1, "Page.javascriptDialogOpening"_L1};
        const QString method = event["method"_L1].toString();
        if (bad.contains(method))
            complaints << QString::fromUtf8(QJsonDocument(event).toJson());
        if (method == "Network.requestWillBeSent"_L1)
            requests << event["params"_L1]["request"_L1]["url"_L1].toString();
        loaded_ = loaded_ || method == "Page.loadEventFired"_L1;
    }
    QJsonObject call(const char *method, const QJsonObject &parameters = {})
    {
        QJsonObject request{
            {"id"_L1, ++lastId_}, {"method"_L1, QLatin1String(method)}, {"params"_L1, parameters}};
        if (!session_.isUndefined())
            request["sessionId"_L1] = session_;
        const QByteArray bytes = QJsonDocument(request).toJson() + '\0';
        QJsonObject answer;
        if (write(toBrowser_, bytes.constData(), static_cast<size_t>(bytes.size())) == bytes.size())
            for (answer = read(); !answer.isEmpty() && answer["id"_L1].toInt() != lastId_; answer = read())
                note(answer);
        if (!answer.contains("result"_L1))
            QTest::qFail(method, __FILE__, __LINE__);
        return answer["result"_L1].toObject();
    }

    QTemporaryDir home_;
    QProcess process_;
    int toBrowser_ = -1;
    int fromBrowser_ = -1;
    QByteArray pending_;
    QJsonValue session_ = QJsonValue::Undefined;
    int lastId_ = 0;
    bool loaded_ = false;
};
