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

using namespace Qt::StringLiterals;

/// A real browser without a window, driven over its own protocol through its input and output. Every wait has
/// an end: what does not come fails the running test.
class Chromium
{
public:
    Chromium()
    {
        // The browser reads from file 3 and writes to file 4.
        process_.start("sh"_L1, {"-c"_L1,
                                 "exec 3<&0 4>&1 </dev/null >/dev/null 2>&1; exec chromium --headless=new "
                                 "--no-sandbox --disable-gpu --no-first-run --disable-dev-shm-usage "
                                 "--remote-debugging-pipe --window-size=1000,700 --user-data-dir=$0"_L1,
                                 home_.path()});
        const QJsonValue target = call("Target.createTarget", {{"url"_L1, "about:blank"_L1}})["targetId"_L1];
        session_ =
            call("Target.attachToTarget", {{"targetId"_L1, target}, {"flatten"_L1, true}})["sessionId"_L1];
        for (const char *domain : {"Page.enable", "Runtime.enable", "Log.enable", "Network.enable"})
            call(domain);
    }
    ~Chromium()
    {
        process_.closeWriteChannel();
        if (!process_.waitForFinished(3000))
            process_.kill();
        process_.waitForFinished(3000);
    }

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
            if (!process_.waitForReadyRead(patience))
                return {};
            pending_ += process_.readAllStandardOutput();
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
        process_.write(QJsonDocument(request).toJson() + '\0');
        QJsonObject answer = read();
        for (; !answer.isEmpty() && answer["id"_L1].toInt() != lastId_; answer = read())
            note(answer);
        if (!answer.contains("result"_L1))
            QTest::qFail(method, __FILE__, __LINE__);
        return answer["result"_L1].toObject();
    }

    QTemporaryDir home_;
    QProcess process_;
    QByteArray pending_;
    QJsonValue session_ = QJsonValue::Undefined;
    int lastId_ = 0;
    bool loaded_ = false;
};
