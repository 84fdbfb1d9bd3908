// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file_places.h"
#include "platform/files.h"
#include "platform/window_file_dialogs.h"
#include "support/test_class.h"

#include <QtWidgets>

namespace {

/// Does `act` with the file dialog as soon as it is open.
template <typename Act> void whenOpen(Act act)
{
    QTimer::singleShot(50, [act] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return QTest::qFail("no file dialog is open", __FILE__, __LINE__);
        act(*dialog);
        if (dialog->isVisible())
            dialog->reject(); // a failed comparison must not leave the test waiting
    });
}

void enterNames(QFileDialog &dialog, const QString &names)
{
    dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(names);
    dialog.findChild<QDialogButtonBox *>()->buttons().constFirst()->click();
}

} // namespace

class WindowFileDialogsTest : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;
    WindowFileDialogs real_{storedPath(folder_.path()) + u'\\'};
    FileDialogs &dialogs_ = real_;
    const QString lists_ = u"Text Dateien (*.txt)|*.txt"_s;

private slots:
    void initTestCase()
    {
        for (const QString &name : {u"Übung.TXT"_s, u"Abend.txt"_s, u"Zahl.txt"_s, u"Bild.png"_s})
            writeFileAtomically(folder_.filePath(name), "x");
    }

    void turnsFilters()
    {
        QCOMPARE(WindowFileDialogs::nameFilters(u"A|*.a|Bilder (*.jpg)|*.jpg;*.jpeg;|halb"_s),
                 QStringList({u"A (*.a)"_s, u"Bilder (*.jpg) (*.jpg *.jpeg)"_s}));
    }

    void opensSeveralInTheDialogsOrder()
    {
        whenOpen([&](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Wortel laden (Multi)"_s);
            QCOMPARE(QDir(dialog.directory()).canonicalPath(), QDir(folder_.path()).canonicalPath());
            enterNames(dialog, u"\"Zahl.txt\" \"Übung.TXT\""_s);
        });
        const QString stored = storedPath(folder_.path());
        QCOMPARE(dialogs_.openFiles(u"Wortel laden (Multi)"_s, stored + u"\\"_s, lists_, true),
                 QStringList({stored + u"\\Zahl.txt"_s, stored + u"\\Übung.TXT"_s}));
    }

    void cancelledGivesNothing()
    {
        whenOpen([](QFileDialog &dialog) { dialog.reject(); });
        QCOMPARE(dialogs_.openFiles(u"x"_s, u"C:\\fehlt\\text"_s, lists_, false), QStringList());
        whenOpen([](QFileDialog &dialog) { dialog.reject(); });
        QCOMPARE(dialogs_.saveFile(u"x"_s, QString(), lists_, u".txt"_s), QString());
    }

    void savesWithSuffix_data()
    {
        columns<QString, QString>("typed", "name");
        QTest::newRow("added") << u"Größe"_s << u"Größe.txt"_s;
        QTest::newRow("there") << u"Größe.TXT"_s << u"Größe.TXT"_s;
        QTest::newRow("other") << u"Größe.lst"_s << u"Größe.lst"_s;
    }
    void savesWithSuffix()
    {
        QFETCH(QString, typed);
        QFETCH(QString, name);
        whenOpen([&](QFileDialog &dialog) {
            QCOMPARE(dialog.selectedFiles().value(0), folder_.filePath(u"Vorschlag.txt"_s));
            enterNames(dialog, typed);
        });
        const QString stored = storedPath(folder_.path());
        QCOMPARE(dialogs_.saveFile(u"x"_s, stored, lists_, u".txt"_s, {u"Vorschlag"_s, {}}),
                 stored + u'\\' + name);
    }

    void nothingCanBeRenamedOrDeleted()
    {
        const auto look = [&](QFileDialog &dialog) {
            auto *list = dialog.findChild<QListView *>(u"listView"_s);
            QTRY_VERIFY(list->model()->rowCount(list->rootIndex()) > 0);
            list->setCurrentIndex(list->model()->index(0, 0, list->rootIndex()));
            QVERIFY(!(list->currentIndex().flags() & Qt::ItemIsEditable) && !list->dragEnabled());
            QTest::keyClick(list, Qt::Key_Delete);
            for (const QString &name : {u"qt_rename_action"_s, u"qt_delete_action"_s})
                QVERIFY(!dialog.findChild<QAction *>(name)->isEnabled());
            QVERIFY(dialog.sidebarUrls().contains(QUrl::fromLocalFile(folder_.path())));
        };
        whenOpen(look);
        dialogs_.saveFile(u"x"_s, storedPath(folder_.path()), lists_, u".txt"_s);
        whenOpen(look);
        dialogs_.openFiles(u"x"_s, storedPath(folder_.path()), lists_, false);
        QCOMPARE(QDir(folder_.path()).entryList(QDir::Files).size(), 4);
    }

    void findsDrives()
    {
        QCOMPARE(drivesOf("/dev/sda1 / ext4 rw 0 0\nhalf\n/dev/sdb1 /media/anna/MEIN\\040STICK vfat rw 0 0\n"
                          "//s/t /mnt/Tausch cifs rw 0 0\n"),
                 QStringList({u"/media/anna/MEIN STICK"_s, u"/mnt/Tausch"_s}));
    }

    void tellsWhatCannotBeSaved_data()
    {
        columns<QString, QString>("typed", "told");
        QTest::newRow("too long in umlauts") << QString(126, u'ü') << u"zu lang"_s;
        QTest::newRow("backslash") << u"a\\b"_s << u"Schrägstrich"_s;
        QTest::newRow("another file") << u"zAHL"_s << u"gibt es schon"_s; // of that name in another case
        QTest::newRow("the open one") << u"ABEND"_s << QString();
    }
    void tellsWhatCannotBeSaved()
    {
        QFETCH(QString, typed);
        QFETCH(QString, told);
        QString seen;
        whenOpen([&](QFileDialog &dialog) {
            QTimer::singleShot(100, [&seen] {
                if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                    seen = box->text();
                    box->reject();
                }
            });
            enterNames(dialog, typed);
            QTest::qWait(150);
        });
        const QString stored = storedPath(folder_.path());
        const QString saved =
            dialogs_.saveFile(u"x"_s, stored, lists_, u".txt"_s, {{}, stored + u"\\Abend.txt"_s});
        QVERIFY2(seen.contains(told) && seen.isEmpty() == told.isEmpty(), qPrintable(seen));
        QCOMPARE(saved.isEmpty(), !told.isEmpty());
    }

    void asksBeforeAFileIsReplaced()
    {
        QStringList asked;
        const auto answer = [&](const QString &button) {
            QTimer::singleShot(200, [&asked, button] {
                auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                if (!box)
                    return QTest::qFail("no question", __FILE__, __LINE__);
                asked.append(box->text());
                const QList<QAbstractButton *> buttons = box->buttons();
                for (QAbstractButton *candidate : buttons)
                    if (candidate->text().remove(u'&') == button)
                        candidate->click();
            });
        };
        whenOpen([&](QFileDialog &dialog) {
            answer(u"Abbrechen"_s);
            enterNames(dialog, u"Abend"_s);
            QVERIFY(dialog.isVisible());
            answer(u"Ersetzen"_s);
            enterNames(dialog, u"Zahl"_s);
        });
        const QString stored = storedPath(folder_.path());
        QCOMPARE(dialogs_.saveFile(u"x"_s, stored, lists_, u".txt"_s), stored + u"\\Zahl.txt"_s);
        QCOMPARE(asked.size(), 2);
        QCOMPARE(asked[0], u"Abend.txt gibt es schon.\nSoll die Datei ersetzt werden?"_s);
    }
};

WORTEL_TEST(WindowFileDialogsTest)
#include "tst_window_file_dialogs.moc"
