// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QChar>
#include <QColor>
#include <QFont>
#include <QIcon>
#include <QString>

// Icons drawn from the Material Icons font. The font's family is stored once at start-up; when
// the font could not be loaded, glyphs fall back to a missing-glyph box.
namespace IconFont {

// Code points of the glyphs the interface uses.
namespace Glyph {
inline constexpr char16_t AccessTime = 0xe192;
inline constexpr char16_t Add = 0xe145;
inline constexpr char16_t ArrowBack = 0xe5c4;
inline constexpr char16_t ArrowForward = 0xe5c8;
inline constexpr char16_t CalendarMonth = 0xebcc;
inline constexpr char16_t Check = 0xe5ca;
inline constexpr char16_t ChevronLeft = 0xe5cb;
inline constexpr char16_t ChevronRight = 0xe5cc;
inline constexpr char16_t Close = 0xe5cd;
inline constexpr char16_t CloudOff = 0xe2c1;
inline constexpr char16_t DarkMode = 0xe51c;
inline constexpr char16_t Delete = 0xe872;
inline constexpr char16_t Edit = 0xe3c9;
inline constexpr char16_t ErrorOutline = 0xe001;
inline constexpr char16_t Event = 0xe878;
inline constexpr char16_t ExpandMore = 0xe5cf;
inline constexpr char16_t FilterAlt = 0xef4f;
inline constexpr char16_t Group = 0xe7ef;
inline constexpr char16_t LightMode = 0xe518;
inline constexpr char16_t Link = 0xe157;
inline constexpr char16_t LocationOn = 0xe0c8;
inline constexpr char16_t Lock = 0xe897;
inline constexpr char16_t Menu = 0xe5d2;
inline constexpr char16_t MoreHoriz = 0xe5d3;
inline constexpr char16_t Notes = 0xe26c;
inline constexpr char16_t Notifications = 0xe7f4;
inline constexpr char16_t Palette = 0xe40a;
inline constexpr char16_t Person = 0xe7fd;
inline constexpr char16_t Repeat = 0xe040;
inline constexpr char16_t Schedule = 0xe8b5;
inline constexpr char16_t Search = 0xe8b6;
inline constexpr char16_t Settings = 0xe8b8;
inline constexpr char16_t Subject = 0xe8d2;
inline constexpr char16_t Sync = 0xe627;
inline constexpr char16_t Today = 0xe8df;
inline constexpr char16_t Undo = 0xe166;
inline constexpr char16_t Videocam = 0xe04b;
inline constexpr char16_t ViewDay = 0xe8ed;
inline constexpr char16_t ViewWeek = 0xe8f3;
inline constexpr char16_t Visibility = 0xe8f4;
inline constexpr char16_t VisibilityOff = 0xe8f5;
} // namespace Glyph

void setFamily(const QString &family);
QString family();
// The icon font at a pixel size.
QFont font(int pixelSize);
// An icon of one glyph in a colour, crisp at every device pixel ratio.
QIcon icon(char16_t glyph, const QColor &color);
// The glyph as text, for labels and painting with font().
inline QString text(char16_t glyph)
{
    return QString(QChar(glyph));
}

} // namespace IconFont
