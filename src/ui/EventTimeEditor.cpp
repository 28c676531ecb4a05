// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/EventTimeEditor.h"

#include "ical/TimeZones.h"

#include "storage/Event.h"
#include "ui/EventWording.h"
#include "ui/HintLabel.h"
#include "ui/IconFont.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QTimeEdit>
#include <QVBoxLayout>

namespace {

constexpr char16_t kGlyphPublic = 0xe80b; // a globe, beside the time zone

} // namespace

EventTimeEditor::EventTimeEditor(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);

    auto *when = new QHBoxLayout;
    when->setSpacing(6);
    m_startDate = new QDateEdit(this);
    m_startDate->setObjectName(QStringLiteral("startDate"));
    m_startTime = new QTimeEdit(this);
    m_startTime->setObjectName(QStringLiteral("startTime"));
    m_dash = new QLabel(QStringLiteral("–"), this);
    m_endTime = new QTimeEdit(this);
    m_endTime->setObjectName(QStringLiteral("endTime"));
    m_endDate = new QDateEdit(this);
    m_endDate->setObjectName(QStringLiteral("endDate"));
    // Wide enough for the longest date and time in the user's language, with room for the arrow.
    const QString dateFormat = tr("ddd, MMM d, yyyy");
    int dateWidth = 0;
    for (int month = 1; month <= 12; ++month)
        dateWidth
            = qMax(dateWidth, fontMetrics().horizontalAdvance(QLocale().toString(QDate(2024, month, 28), dateFormat)));
    for (QDateEdit *edit : {m_startDate, m_endDate}) {
        edit->setCalendarPopup(true);
        edit->setDisplayFormat(dateFormat);
        edit->setMinimumDate(QDate(1900, 1, 1));
        edit->setMinimumWidth(dateWidth + 34);
    }
    const int timeWidth = fontMetrics().horizontalAdvance(QStringLiteral("12:00 PM")) + 18;
    for (QTimeEdit *edit : {m_startTime, m_endTime}) {
        edit->setButtonSymbols(QAbstractSpinBox::NoButtons);
        edit->setAlignment(Qt::AlignCenter);
        edit->setMinimumWidth(timeWidth);
    }
    when->addWidget(m_startDate);
    when->addWidget(m_startTime);
    when->addWidget(m_dash);
    when->addWidget(m_endTime);
    when->addWidget(m_endDate);
    when->addStretch(1);
    layout->addLayout(when);

    auto *options = new QHBoxLayout;
    options->setSpacing(8);
    m_allDay = new QCheckBox(tr("All day"), this);
    m_allDay->setObjectName(QStringLiteral("allDay"));
    options->addWidget(m_allDay);
    options->addSpacing(12);
    m_zoneIcon = new QLabel(IconFont::text(kGlyphPublic), this);
    m_zoneIcon->setObjectName(QStringLiteral("fieldIcon"));
    m_zoneIcon->setFont(IconFont::font(16));
    options->addWidget(m_zoneIcon);
    m_zone = new QComboBox(this);
    m_zone->setObjectName(QStringLiteral("timeZone"));
    m_zone->setEditable(true);
    m_zone->setInsertPolicy(QComboBox::NoInsert);
    m_zone->setToolTip(tr("Time zone of the event: its times are shown and edited in it"));
    QStringList zoneIds;
    for (const QByteArray &id : QTimeZone::availableTimeZoneIds())
        zoneIds.append(QString::fromUtf8(id));
    if (!zoneIds.contains(QLatin1String("UTC")))
        zoneIds.append(QStringLiteral("UTC"));
    zoneIds.sort();
    m_zone->addItems(zoneIds);
    m_zone->setMinimumContentsLength(18);
    m_zone->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto *completer = new QCompleter(zoneIds, m_zone);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    m_zone->setCompleter(completer);
    m_zone->installEventFilter(this);
    options->addWidget(m_zone);
    options->addStretch(1);
    layout->addLayout(options);

    m_hint = new QLabel(this);
    m_hint->setObjectName(QStringLiteral("timeHint"));
    m_hint->setWordWrap(true);
    m_hint->hide();
    layout->addWidget(m_hint);

    setTabOrder(m_startDate, m_startTime);
    setTabOrder(m_startTime, m_endTime);
    setTabOrder(m_endTime, m_endDate);
    setTabOrder(m_endDate, m_allDay);
    setTabOrder(m_allDay, m_zone);

    connect(m_startDate, &QDateEdit::dateChanged, this, &EventTimeEditor::onStartChanged);
    connect(m_startTime, &QTimeEdit::timeChanged, this, &EventTimeEditor::onStartChanged);
    connect(m_endDate, &QDateEdit::dateChanged, this, &EventTimeEditor::onEndChanged);
    connect(m_endTime, &QTimeEdit::timeChanged, this, &EventTimeEditor::onEndChanged);
    connect(m_allDay, &QCheckBox::toggled, this, &EventTimeEditor::onAllDayToggled);
    connect(m_zone, &QComboBox::currentTextChanged, this, [this] {
        updateHint();
        emit timesChanged();
    });
    setTwentyFourHour(false);
    updateVisibility();
}

void EventTimeEditor::setFirstDayOfWeek(Qt::DayOfWeek day)
{
    m_startDate->calendarWidget()->setFirstDayOfWeek(day);
    m_endDate->calendarWidget()->setFirstDayOfWeek(day);
}

void EventTimeEditor::setTwentyFourHour(bool twentyFourHour)
{
    m_twentyFourHour = twentyFourHour;
    const QString format = twentyFourHour ? QStringLiteral("HH:mm") : QStringLiteral("h:mm AP");
    m_startTime->setDisplayFormat(format);
    m_endTime->setDisplayFormat(format);
    updateHint();
}

void EventTimeEditor::setTimes(const QDateTime &start, const std::optional<QDateTime> &end, bool allDay,
                               const QString &zoneId)
{
    m_updating = true;
    m_openedAllDay = allDay;
    m_unknownZoneId.clear();
    m_unknownZoneOffset = QTimeZone();
    if (!TimeZones::named(zoneId.trimmed()).isValid() && start.isValid()) {
        m_unknownZoneId = zoneId.trimmed();
        m_unknownZoneOffset = start.timeZone();
    }
    {
        const QSignalBlocker blocker(m_zone);
        m_zone->setEditText(zoneId);
    }
    m_allDay->setChecked(allDay);
    if (allDay) {
        const QDate first = EventWording::allDayDate(start);
        QDate last = end ? EventWording::allDayDate(*end).addDays(-1) : first;
        if (last < first)
            last = first;
        m_startDate->setDate(first);
        m_endDate->setDate(last);
        m_startTime->setTime(QTime(9, 0));
        m_endTime->setTime(QTime(10, 0));
        m_allDaySpanDays = int(first.daysTo(last));
        m_timedSpanSecs = 3600;
    } else {
        const QTimeZone tz = zone();
        const QDateTime shownStart = tz.isValid() ? start.toTimeZone(tz) : start;
        const QDateTime shownEnd = end ? (tz.isValid() ? end->toTimeZone(tz) : *end) : shownStart;
        m_startDate->setDate(shownStart.date());
        m_startTime->setTime(shownStart.time());
        m_endDate->setDate(shownEnd.date());
        m_endTime->setTime(shownEnd.time());
        m_timedSpanSecs = qMax<qint64>(0, shownStart.secsTo(shownEnd));
        m_allDaySpanDays = int(qMax<qint64>(0, shownStart.date().daysTo(shownEnd.date())));
    }
    m_updating = false;
    updateVisibility();
    updateHint();
    emit timesChanged();
}

bool EventTimeEditor::isAllDay() const
{
    return m_allDay->isChecked();
}

void EventTimeEditor::setAllDay(bool allDay)
{
    m_allDay->setChecked(allDay);
}

QString EventTimeEditor::zoneId() const
{
    return m_zone->currentText().trimmed();
}

void EventTimeEditor::setZoneId(const QString &zoneId)
{
    m_zone->setEditText(zoneId);
}

QTimeZone EventTimeEditor::zone() const
{
    const QString id = zoneId();
    if (!m_unknownZoneId.isEmpty() && id == m_unknownZoneId)
        return m_unknownZoneOffset;
    return TimeZones::named(id);
}

QDateTime EventTimeEditor::timedStart() const
{
    const QTimeZone tz = zone();
    return tz.isValid() ? QDateTime(m_startDate->date(), m_startTime->time(), tz) : QDateTime();
}

QDateTime EventTimeEditor::timedEnd() const
{
    const QTimeZone tz = zone();
    return tz.isValid() ? QDateTime(m_endDate->date(), m_endTime->time(), tz) : QDateTime();
}

QDateTime EventTimeEditor::start() const
{
    if (isAllDay())
        return QDateTime(m_startDate->date(), QTime(0, 0), QTimeZone::utc());
    return timedStart();
}

QDateTime EventTimeEditor::end() const
{
    if (isAllDay()) {
        const QDate last = qMax(m_endDate->date(), m_startDate->date());
        return QDateTime(last.addDays(1), QTime(0, 0), QTimeZone::utc());
    }
    return timedEnd();
}

QDate EventTimeEditor::firstDay() const
{
    return m_startDate->date();
}

QString EventTimeEditor::problem() const
{
    if (isAllDay())
        return m_endDate->date() < m_startDate->date() ? tr("The event ends before it starts.") : QString();
    if (!zone().isValid())
        return tr("\"%1\" is not a time zone this computer knows.").arg(zoneId());
    if (timedEnd() < timedStart())
        return tr("The event ends before it starts.");
    return QString();
}

void EventTimeEditor::setReadOnly(bool readOnly)
{
    for (QWidget *widget :
         std::initializer_list<QWidget *>{m_startDate, m_startTime, m_endTime, m_endDate, m_allDay, m_zone})
        widget->setEnabled(!readOnly);
}

QWidget *EventTimeEditor::firstInFocusChain() const
{
    return m_startDate;
}

QWidget *EventTimeEditor::lastInFocusChain() const
{
    return m_zone;
}

bool EventTimeEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_zone && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)
            && !m_zone->completer()->popup()->isVisible()) {
            emit submitRequested();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void EventTimeEditor::onStartChanged()
{
    if (m_updating)
        return;
    m_updating = true;
    if (isAllDay()) {
        m_endDate->setDate(m_startDate->date().addDays(m_allDaySpanDays));
    } else if (const QDateTime end = timedStart().addSecs(m_timedSpanSecs); end.isValid()) {
        m_endDate->setDate(end.date());
        m_endTime->setTime(end.time());
    }
    m_updating = false;
    updateHint();
    emit timesChanged();
}

void EventTimeEditor::onEndChanged()
{
    if (m_updating)
        return;
    // An end before the start is shown as a problem and does not become the length kept.
    if (isAllDay()) {
        if (const qint64 days = m_startDate->date().daysTo(m_endDate->date()); days >= 0)
            m_allDaySpanDays = int(days);
    } else if (const qint64 secs = timedStart().secsTo(timedEnd()); secs >= 0) {
        m_timedSpanSecs = secs;
    }
    updateHint();
    emit timesChanged();
}

void EventTimeEditor::onAllDayToggled(bool on)
{
    if (m_updating)
        return;
    m_updating = true;
    if (on) {
        // The last day is the one the event ends on, or the day before when it ends at midnight.
        QDate last = m_endDate->date();
        if (m_endTime->time() == QTime(0, 0) && last > m_startDate->date())
            last = last.addDays(-1);
        last = qMax(last, m_startDate->date());
        m_endDate->setDate(last);
        m_allDaySpanDays = int(m_startDate->date().daysTo(last));
    } else {
        // Dates carry no zone; hours do, and the natural one is the user's own.
        if (m_openedAllDay && zoneId() == QLatin1String("UTC")) {
            const QSignalBlocker blocker(m_zone);
            m_zone->setEditText(TimeZones::systemZoneId());
        }
        if (m_endDate->date() == m_startDate->date() && m_endTime->time() <= m_startTime->time()) {
            m_startTime->setTime(QTime(9, 0));
            m_endTime->setTime(QTime(10, 0));
        }
        if (const qint64 secs = timedStart().secsTo(timedEnd()); secs > 0) {
            m_timedSpanSecs = secs;
        } else {
            const QDateTime end = timedStart().addSecs(3600);
            m_endDate->setDate(end.date());
            m_endTime->setTime(end.time());
            m_timedSpanSecs = 3600;
        }
    }
    m_updating = false;
    updateVisibility();
    updateHint();
    emit timesChanged();
}

void EventTimeEditor::updateVisibility()
{
    const bool timed = !isAllDay();
    m_startTime->setVisible(timed);
    m_endTime->setVisible(timed);
    m_zone->setVisible(timed);
    m_zoneIcon->setVisible(timed);
}

void EventTimeEditor::updateHint()
{
    if (const QString trouble = problem(); !trouble.isEmpty()) {
        HintLabel::show(m_hint, trouble, true);
        return;
    }
    HintLabel::show(m_hint, QString(), false);
    if (isAllDay())
        return;
    const QDateTime start = timedStart();
    const QDateTime localStart = start.toLocalTime();
    if (localStart.date() == start.date() && localStart.time() == start.time())
        return;
    Event shown;
    shown.start_time = start;
    shown.end_time = timedEnd();
    HintLabel::show(
        m_hint,
        tr("%1 in your time zone").arg(EventWording::timeRange(shown, m_twentyFourHour, localStart.date().year())),
        false);
}
