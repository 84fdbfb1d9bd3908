// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/colours.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// A picture that lies on the page at a place in pixels.
struct PagePicture
{
    QString address; ///< a URL
    int left = 0;
    int top = 0;
};

/// The text as HTML that shows it and can be nothing else, in ASCII whatever its letters are: a browser reads
/// it the same in every charset. Fits into attributes between double quotes, too.
QString htmlText(const QString &text);
/// A colour as HTML has it: "#RRGGBB".
QString htmlColour(Colour colour);

/// Writes a page of HTML 3.2, one line a call. While no page is open every call does nothing. What is a text
/// is written by `htmlText`; only magnets and scripts are taken as they are.
class CHTMLWrapper
{
public:
    QString Filename() const { return fileName_; }
    void setFilename(const QString &storedPath) { fileName_ = storedPath; }
    bool isOpen() const { return open_; }

    void OpenHTMLDoc();
    void OpenHTMLHeader(const QString &title);
    void CloseHTMLHeader();
    void OpenHTMLBody(Colour back, Colour text, const std::optional<PagePicture> &picture = {});
    /// The script, and after it the call, if there is one; then the body's end.
    void CloseHTMLBody(const QString &script, const QString &call);
    void CloseHTMLBody2();
    /// Ends the page and writes the file. Throws RuntimeError as writeFileAtomically.
    void CloseHTMLDoc();

    void InsertBreak();
    void InsertComment(const QString &text);
    void InsertHorizontalRule();
    void InsertJavaScript(const QString &code, const QString &noScript);
    /// A link to a page, or to the address of a person.
    void InsertLink(const QString &address, const QString &text, bool isMail);
    void InsertPicture(const QString &address);
    void StartTable(int border);
    void StartTableRow();
    void EndTableRow();
    void EndTable();
    void WriteTableData(const QString &text) { element("TD", text); }
    void WriteTableHeader(const QString &text) { element("TH", text); }
    void WriteBoldText(const QString &text) { element("B", text); }
    void WriteItalicText(const QString &text) { element("I", text); }
    void WriteParagraph(const QString &text) { element("P", text); }
    void WritePre(const QString &text) { element("PRE", text); }
    void WriteHeader(int level, const QString &text) { element("H" + QByteArray::number(level), text); }
    void WriteMagnet(const QString &html);

private:
    void line(const QByteArray &html);
    void line(const QString &html);
    void element(const QByteArray &name, const QString &text);

    QString fileName_;
    QByteArray page_;
    bool open_ = false;
};
