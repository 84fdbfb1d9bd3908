// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "games/kernling/frm_kernling.h"
#include "games/kernling/frm_kernling_options.h"
#include "games/kernling/kernling_controls.h"
#include "games/kernling/kernling_text.h"
#include "games/kernling/word_list_box.h"
#include "support/test_board.h"
#include "support/test_class.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QGroupBox>
#include <QLineEdit>
#include <QMimeData>
#include <QRadioButton>

/// The house with the stem game's window open, and a hand at its controls. Its stems are "halt", "renn" and
/// "wirk".
struct Workshop : TestHouse
{
    FrmKernling &k = r.kernling;

    Workshop()
        : TestHouse(1, {853, 480})
    {
        t.writeFile(u"text\\Hauptbausteine.Txt"_s, u"halt\r\n\r\n renn \r\nwirk\r\n"_s);
        t.writeFile(u"text kurz lang\\alle.txt"_s, u"ball\r\nbahn\r\n"_s);
        t.writeFile(u"Wortel enthalten.ini"_s, u"[Stamm]\r\nrenn=brenn, trenn\r\nhalt=schalt\r\n"_s);
        form.show();
        k.Form_Load();
        k.resize(853, 450);
        k.show();
        settle();
    }

    const KernlingControls &c() const { return k.controls(); }
    KernlingText &text() const { return *c().RTF; }

    void press(PressButton *button, Qt::MouseButton with = Qt::LeftButton) { tool(button, with); }
    void write(const QString &words)
    {
        text().setPlainText(words);
        settle();
    }
    QPoint placeOf(int position) const
    {
        QTextCursor cursor(text().document());
        cursor.setPosition(position);
        return text().cursorRect(cursor).center();
    }
    /// Marks letters with the mouse.
    void mark(int from, int to) const
    {
        const auto send = [this](QEvent::Type type, int position, Qt::MouseButton button, bool held) {
            const QPoint at = placeOf(position);
            QMouseEvent event(type, at, text().viewport()->mapToGlobal(at), button,
                              held ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(text().viewport(), &event);
        };
        send(QEvent::MouseButtonPress, from, Qt::LeftButton, true);
        send(QEvent::MouseMove, to, Qt::NoButton, true);
        send(QEvent::MouseButtonRelease, to, Qt::LeftButton, false);
    }
    void markWord(const QString &word) const
    {
        const auto at = static_cast<int>(text().text().indexOf(word));
        mark(at, at + static_cast<int>(word.size()));
    }
    /// Letter for letter: "r" on red, "." on none, "?" on another background.
    QString paint() const
    {
        QString result;
        QTextCursor cursor(text().document());
        for (int at = 1; at < text().document()->characterCount(); ++at) {
            cursor.setPosition(at);
            const QBrush back = cursor.charFormat().background();
            result += back.style() == Qt::NoBrush ? u'.' : back.color() == QColor(Qt::red) ? u'r' : u'?';
        }
        return result;
    }
    /// Drops something on the text. Whoever drags asks first.
    void drop(const QMimeData &data, int position = 0) const
    {
        const QPointF at = placeOf(position);
        QDragEnterEvent enter(at.toPoint(), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(text().viewport(), &enter);
        QDropEvent event(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(text().viewport(), &event);
        QVERIFY(event.dropAction() == Qt::CopyAction); // a move would delete the file
        settle();
    }
    QString answer() const { return c().rtfResponse->toPlainText(); }
    QString lastBox() const { return t.boxes.told(); }
    QStringList words() const { return c().List1->store()->rows(); }
    static QStringList rows(const StoreList *list) { return list->store()->rows(); }

    /// What the window's works let in at their first look at the hand.
    void atServe(const std::function<void()> &action)
    {
        t.pump.waiting = true;
        t.pump.onServe = [this, action] {
            const std::function<void()> once = action;
            t.pump.onServe = nullptr; // and this closure has gone
            once();
        };
    }
};
