// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/web/web_wishes.h"

#include "output/web/web_view.h"
#include "platform/settings_store.h"
#include "platform/text.h"

#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

const QString section = u"Web"_s;

template <typename Control> struct Row
{
    const char *key;
    Control *WebView::*control;
};

constexpr std::array<std::pair<Row<QCheckBox>, bool>, 8> boxes{{
    {{"WebAddDate", &WebView::ChkAddDate}, false},
    {{"WebAddBGPic", &WebView::chkAddBGPic}, false},
    {{"WebStripPicExt", &WebView::ChkStripExt}, true},
    {{"WebMovePic", &WebView::ChkMovePic}, false},
    {{"WebMoveWords", &WebView::ChkMoveable}, true},
    {{"WebUseBorderOnWords", &WebView::ChkUseBorder}, true},
    {{"WebMoveTitle", &WebView::ChkMoveTitle}, false},
    {{"WebUseTitle", &WebView::ChkKeepTitle}, false},
}};

constexpr std::array<std::pair<Row<QLineEdit>, const char16_t *>, 4> texts{{
    {{"WebTitle", &WebView::TextWebTitle}, u"Wortbausteine"},
    {{"WebBGPicPath", &WebView::txtbgpic}, u""},
    {{"WebPicXPos", &WebView::LimitedPosX}, u"0"},
    {{"WebPicYPos", &WebView::LimitedPosY}, u"0"},
}};

constexpr std::array<std::pair<Row<ColourSwatch>, Colour>, 3> swatches{{
    {{"WebBGColor", &WebView::Picture1}, colours::white},
    {{"WebWordBGColor", &WebView::Picture2}, colours::white},
    {{"WebWordFColor", &WebView::Picture3}, colours::black},
}};

/// Options of which one is on; the first one if the store names none.
constexpr std::array sizeKeys{"WebFontUseDefaultSize", "WebFontUsePlus1", "WebFontUsePlus2",
                              "WebFontUsePlus3",       "WebFontUsePlus4", "WebFontUsePlus5"};
constexpr std::array colourKeys{"WebUseBQVColors", "WebUseCustomColors"};

QString stored(const SettingsStore &store, const char *key, const QString &fallback = {})
{
    return store.GetSetting(section, QLatin1String(key), fallback);
}

bool isOn(const QString &value) { return equalsIgnoreCase(value, u"True"_s) || Val(value) != 0; }

template <std::size_t Count>
void readOptions(const SettingsStore &store, const std::array<const char *, Count> &keys,
                 const std::array<QRadioButton *, Count> &buttons)
{
    std::size_t chosen = 0;
    for (std::size_t i = Count; i-- > 0;)
        if (isOn(stored(store, keys[i])))
            chosen = i;
    buttons[chosen]->setChecked(true);
}

template <std::size_t Count>
void saveOptions(QList<QPair<QString, QString>> &values, const std::array<const char *, Count> &keys,
                 const std::array<QRadioButton *, Count> &buttons)
{
    for (std::size_t i = 0; i < Count; ++i)
        values.append({QLatin1String(keys[i]), buttons[i]->isChecked() ? u"True"_s : u"False"_s});
}

} // namespace

void web_wishes::read(const SettingsStore &store, WebView &view)
{
    for (const auto &[row, fallback] : boxes) {
        const QString value = stored(store, row.key);
        (view.*row.control)->setChecked(value.isEmpty() ? fallback : isOn(value));
    }
    for (const auto &[row, fallback] : texts)
        (view.*row.control)->setText(stored(store, row.key, QString::fromUtf16(fallback)));
    for (const auto &[row, fallback] : swatches) {
        const QString value = stored(store, row.key);
        bool isNumber = false;
        const uint colour = value.toUInt(&isNumber);
        (view.*row.control)->setColour(isNumber && colour <= colours::white ? Colour(colour) : fallback);
    }
    readOptions(store, sizeKeys, view.OptFontSize);
    readOptions(store, colourKeys, view.Option2);
}

void web_wishes::save(SettingsStore &store, const WebView &view)
{
    QList<QPair<QString, QString>> values;
    for (const auto &[row, fallback] : boxes)
        values.append({QLatin1String(row.key), (view.*row.control)->isChecked() ? u"1"_s : u"0"_s});
    for (const auto &[row, fallback] : texts)
        values.append({QLatin1String(row.key), (view.*row.control)->text()});
    for (const auto &[row, fallback] : swatches)
        values.append({QLatin1String(row.key), QString::number((view.*row.control)->colour())});
    saveOptions(values, sizeKeys, view.OptFontSize);
    saveOptions(values, colourKeys, view.Option2);
    store.SaveSettings(section, values);
}
