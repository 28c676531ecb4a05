// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QTimeZone>
#include <QWidget>

#include <optional>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QTimeEdit;

// When an event happens, as the event form edits it: start date and time – end time and end date,
// "All day", and the event's time zone, in which the times are shown and edited (an editable list
// of IANA zone ids). Moving the start moves the end along, keeping the length (elapsed time for
// timed events, days for all-day ones). All-day events show their first and last day; their stored
// end is midnight of the day after the last. Beneath, the times in the user's own zone when they
// differ, or what is wrong with the times.
class EventTimeEditor : public QWidget
{
    Q_OBJECT

public:
    explicit EventTimeEditor(QWidget *parent = nullptr);

    void setFirstDayOfWeek(Qt::DayOfWeek day);
    void setTwentyFourHour(bool twentyFourHour);

    // Shows a start and end (no end: the end shows the start) in the zone `zoneId`. When the id
    // names no zone this computer knows, the times are shown and read in the offset the start
    // carries. An all-day event starting and ending at midnight in any zone shows those dates.
    void setTimes(const QDateTime &start, const std::optional<QDateTime> &end, bool allDay, const QString &zoneId);

    bool isAllDay() const;
    void setAllDay(bool allDay);
    QString zoneId() const; // as typed, trimmed
    void setZoneId(const QString &zoneId); // the times keep their wall-clock values
    QTimeZone zone() const; // invalid when the typed id names no zone
    // Timed: the start and end in the zone (invalid with an unknown zone). All-day: midnight UTC
    // of the first day, and of the day after the last day.
    QDateTime start() const;
    QDateTime end() const;
    QDate firstDay() const;

    // What keeps the times from being saved (an end before the start, an unknown zone), or empty.
    QString problem() const;
    void setReadOnly(bool readOnly);

    QWidget *firstInFocusChain() const;
    QWidget *lastInFocusChain() const;

signals:
    // The user (or a set call) changed the times, the all-day flag or the zone.
    void timesChanged();
    // Enter in the zone box, which keeps Enter to itself otherwise.
    void submitRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QDateTime timedStart() const;
    QDateTime timedEnd() const;
    void onStartChanged();
    void onEndChanged();
    void onAllDayToggled(bool on);
    void updateVisibility();
    void updateHint();

    QDateEdit *m_startDate;
    QTimeEdit *m_startTime;
    QLabel *m_dash;
    QTimeEdit *m_endTime;
    QDateEdit *m_endDate;
    QCheckBox *m_allDay;
    QLabel *m_zoneIcon;
    QComboBox *m_zone;
    QLabel *m_hint;

    bool m_twentyFourHour = false;
    bool m_updating = false;
    bool m_openedAllDay = false;
    qint64 m_timedSpanSecs = 3600;
    int m_allDaySpanDays = 0;
    QString m_unknownZoneId; // the zone id given to setTimes when this computer does not know it
    QTimeZone m_unknownZoneOffset; // the offset its times carry
};
