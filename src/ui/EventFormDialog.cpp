// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/EventFormDialog.h"

#include "ical/TimeZones.h"

#include "app/AppState.h"
#include "storage/CalendarChoice.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/StorageFormat.h"
#include "storage/Template.h"
#include "storage/TemplateRepository.h"
#include "ui/ColorSwatchPicker.h"
#include "ui/EventEditor.h"
#include "ui/EventTimeEditor.h"
#include "ui/EventWording.h"
#include "ui/HintLabel.h"
#include "ui/IconFont.h"
#include "ui/RecurrenceScopeDialog.h"
#include "ui/ReminderListEditor.h"
#include "ui/RepeatPresets.h"
#include "ui/ThemeManager.h"
#include "ui/Typography.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimeZone>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>

namespace {

QIcon swatchIcon(const QColor &color)
{
    QPixmap pixmap(QSize(28, 28));
    pixmap.setDevicePixelRatio(2.0);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QRectF(1.5, 1.5, 11, 11));
    return QIcon(pixmap);
}

// Calls back on key presses of the watched widgets; the callback returns true to consume them.
class KeyWatcher : public QObject
{
public:
    KeyWatcher(QObject *parent, std::function<bool(QObject *, QKeyEvent *)> onKey)
        : QObject(parent)
        , m_onKey(std::move(onKey))
    { }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress)
            return m_onKey(watched, static_cast<QKeyEvent *>(event));
        return false;
    }

private:
    std::function<bool(QObject *, QKeyEvent *)> m_onKey;
};

bool isEnter(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

} // namespace

class EventFormDialog::Private
{
public:
    Private(EventFormDialog *dialog, AppState *state, EventEditor *eventEditor)
        : q(dialog)
        , appState(state)
        , editor(eventEditor)
    { }

    void build();
    void applyTheme();
    QLabel *fieldIcon(char16_t glyph);
    void fillCalendars(const QString &currentId, bool includeCurrentEvenIfReadOnly);
    void showCalendarColor();
    void fillRepeatLabels();
    QDateTime repeatAnchor() const;

    QString currentRule() const;
    void onRepeatChanged();
    void updateRuleHint();

    struct Problem
    {
        QString message;
        QLabel *where = nullptr; // the hint under the field concerned, or the form's error line
    };
    Problem validationProblem() const;
    void revalidate();
    Event editedEvent() const;
    void trySave();
    std::optional<Event> storedAfterSave(const Event &edited, EventEditor::Scope scope) const;

    EventFormDialog *q;
    AppState *appState;
    EventEditor *editor;

    bool isNew = true;
    bool readOnly = false;
    bool updating = false; // filling the form: no focus moves, no validation
    Event original;
    QString initialRule; // the rule shown when the form opened (an override shows its series' rule)
    RepeatPresets::Preset initialPreset = RepeatPresets::Preset::None;
    std::optional<Event> saved;

    QLabel *banner = nullptr;
    QLineEdit *title = nullptr;
    QToolButton *templates = nullptr;
    QComboBox *calendar = nullptr;
    EventTimeEditor *times = nullptr;
    QComboBox *repeat = nullptr;
    QLineEdit *customRule = nullptr;
    QWidget *repeatStretch = nullptr;
    QLabel *colorIcon = nullptr;
    QLabel *locationIcon = nullptr;
    QLabel *notesIcon = nullptr;
    QLabel *ruleHint = nullptr;
    ColorSwatchPicker *colors = nullptr;
    ReminderListEditor *reminders = nullptr;
    QLineEdit *location = nullptr;
    QPlainTextEdit *description = nullptr;
    QLabel *error = nullptr;
    QPushButton *saveButton = nullptr;
    QPushButton *cancelButton = nullptr;
    QList<QLabel *> icons;
};

QLabel *EventFormDialog::Private::fieldIcon(char16_t glyph)
{
    auto *label = new QLabel(IconFont::text(glyph), q);
    label->setObjectName(QStringLiteral("fieldIcon"));
    label->setFont(IconFont::font(20));
    label->setFixedWidth(28);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    icons.append(label);
    return label;
}

void EventFormDialog::Private::build()
{
    q->setObjectName(QStringLiteral("EventFormDialog"));
    auto *outer = new QVBoxLayout(q);
    outer->setContentsMargins(24, 20, 24, 18);
    outer->setSpacing(14);

    banner = new QLabel(q);
    banner->setObjectName(QStringLiteral("readOnlyBanner"));
    banner->setWordWrap(true);
    banner->hide();
    outer->addWidget(banner);

    auto *titleRow = new QHBoxLayout;
    titleRow->setSpacing(8);
    title = new QLineEdit(q);
    title->setObjectName(QStringLiteral("titleEdit"));
    title->setPlaceholderText(tr("Add title"));
    QFont titleFont = Typography::semibold(q->font());
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.45);
    title->setFont(titleFont);
    titleRow->addWidget(title, 1);
    templates = new QToolButton(q);
    templates->setObjectName(QStringLiteral("templatesButton"));
    templates->setText(tr("Templates"));
    templates->setPopupMode(QToolButton::InstantPopup);
    templates->setAutoRaise(true);
    templates->hide();
    titleRow->addWidget(templates, 0, Qt::AlignVCenter);
    outer->addLayout(titleRow);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(12);
    grid->setColumnStretch(1, 1);
    int row = 0;

    // When: the icon sits beside the first of the editor's rows.
    times = new EventTimeEditor(q);
    times->setObjectName(QStringLiteral("times"));
    times->setFirstDayOfWeek(appState->firstDayOfWeek());
    times->setTwentyFourHour(EventWording::prefers24Hour(appState->preferences()));
    QLabel *timesIcon = fieldIcon(IconFont::Glyph::Schedule);
    timesIcon->setFixedHeight(times->firstInFocusChain()->sizeHint().height());
    grid->addWidget(timesIcon, row, 0, Qt::AlignTop);
    grid->addWidget(times, row++, 1);

    // Repeat, with the rule text for a custom rule.
    repeat = new QComboBox(q);
    repeat->setObjectName(QStringLiteral("repeat"));
    using RepeatPresets::Preset;
    for (Preset preset : {Preset::None, Preset::Daily, Preset::Weekdays, Preset::Weekly, Preset::Monthly,
                          Preset::Yearly, Preset::Custom})
        repeat->addItem(QString(), int(preset));
    repeat->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto *repeatRow = new QHBoxLayout;
    repeatRow->setSpacing(8);
    repeatRow->addWidget(repeat);
    customRule = new QLineEdit(q);
    customRule->setObjectName(QStringLiteral("customRule"));
    customRule->setPlaceholderText(QStringLiteral("FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,TH"));
    customRule->setToolTip(tr("A repeat rule: FREQ=DAILY, WEEKLY, MONTHLY or YEARLY, with INTERVAL, COUNT, UNTIL "
                              "and BYDAY"));
    repeatRow->addWidget(customRule, 1);
    repeatStretch = new QWidget(q);
    repeatStretch->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    repeatRow->addWidget(repeatStretch, 1);
    grid->addWidget(fieldIcon(IconFont::Glyph::Repeat), row, 0);
    grid->addLayout(repeatRow, row++, 1);
    ruleHint = new QLabel(q);
    ruleHint->setObjectName(QStringLiteral("ruleHint"));
    ruleHint->setWordWrap(true);
    grid->addWidget(ruleHint, row++, 1);

    calendar = new QComboBox(q);
    calendar->setObjectName(QStringLiteral("calendar"));
    calendar->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto *calendarRow = new QHBoxLayout;
    calendarRow->addWidget(calendar);
    calendarRow->addStretch(1);
    grid->addWidget(fieldIcon(IconFont::Glyph::CalendarMonth), row, 0);
    grid->addLayout(calendarRow, row++, 1);

    colors = new ColorSwatchPicker(q);
    colors->setObjectName(QStringLiteral("colors"));
    colorIcon = fieldIcon(IconFont::Glyph::Palette);
    grid->addWidget(colorIcon, row, 0);
    grid->addWidget(colors, row++, 1, Qt::AlignLeft);

    reminders = new ReminderListEditor(q);
    reminders->setObjectName(QStringLiteral("reminders"));
    grid->addWidget(fieldIcon(IconFont::Glyph::Notifications), row, 0, Qt::AlignTop);
    grid->addWidget(reminders, row++, 1);

    location = new QLineEdit(q);
    location->setObjectName(QStringLiteral("location"));
    location->setPlaceholderText(tr("Add location"));
    locationIcon = fieldIcon(IconFont::Glyph::LocationOn);
    grid->addWidget(locationIcon, row, 0);
    grid->addWidget(location, row++, 1);

    description = new QPlainTextEdit(q);
    description->setObjectName(QStringLiteral("description"));
    description->setPlaceholderText(tr("Add description"));
    description->setTabChangesFocus(true);
    description->setFixedHeight(description->fontMetrics().lineSpacing() * 5 + 14);
    notesIcon = fieldIcon(IconFont::Glyph::Notes);
    notesIcon->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    notesIcon->setContentsMargins(0, 4, 0, 0);
    grid->addWidget(notesIcon, row, 0, Qt::AlignTop);
    grid->addWidget(description, row++, 1);
    outer->addLayout(grid);

    error = new QLabel(q);
    error->setObjectName(QStringLiteral("formError"));
    error->setWordWrap(true);
    error->hide();
    outer->addWidget(error);

    auto *buttons = new QDialogButtonBox(q);
    saveButton = buttons->addButton(tr("Save"), QDialogButtonBox::AcceptRole);
    saveButton->setObjectName(QStringLiteral("saveButton"));
    saveButton->setDefault(true);
    cancelButton = buttons->addButton(QDialogButtonBox::Cancel);
    cancelButton->setObjectName(QStringLiteral("cancelButton"));
    cancelButton->setAutoDefault(false);
    outer->addWidget(buttons);
    QObject::connect(saveButton, &QPushButton::clicked, q, [this] { trySave(); });
    QObject::connect(cancelButton, &QPushButton::clicked, q, &QDialog::reject);

    // Tab order follows the reading order.
    QWidget::setTabOrder(title, times->firstInFocusChain());
    const QList<QWidget *> order{times->lastInFocusChain(),
                                 repeat,
                                 customRule,
                                 calendar,
                                 colors,
                                 reminders->findChild<QPushButton *>(QStringLiteral("addReminder")),
                                 location,
                                 description,
                                 saveButton,
                                 cancelButton};
    for (qsizetype i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order.at(i - 1), order.at(i));

    // Enter saves from the single-line fields: the dialog's default button does it for most of
    // them, the time editor asks for it from its zone box; Ctrl+Enter saves from the description.
    auto *keys = new KeyWatcher(q, [this](QObject *, QKeyEvent *event) {
        if (!isEnter(event) || !(event->modifiers() & Qt::ControlModifier))
            return false;
        trySave();
        return true;
    });
    description->installEventFilter(keys);
    QObject::connect(times, &EventTimeEditor::submitRequested, q, [this] { trySave(); });
    QObject::connect(times, &EventTimeEditor::timesChanged, q, [this] {
        if (updating)
            return;
        fillRepeatLabels();
        revalidate();
    });
    QObject::connect(repeat, &QComboBox::currentIndexChanged, q, [this] { onRepeatChanged(); });
    QObject::connect(customRule, &QLineEdit::textChanged, q, [this] {
        updateRuleHint();
        revalidate();
    });
    QObject::connect(calendar, &QComboBox::currentIndexChanged, q, [this] { showCalendarColor(); });
    QObject::connect(editor, &EventEditor::failed, q,
                     [this](const QString &message) { HintLabel::show(error, message, true); });
    QObject::connect(appState->theme(), &ThemeManager::themeChanged, q, [this] { applyTheme(); });

    applyTheme();
}

void EventFormDialog::Private::applyTheme()
{
    const ThemeManager::Colors &c = appState->theme()->colors();
    q->setPalette(appState->theme()->palette());
    const QString sheet
        = QStringLiteral(
              "QDialog#EventFormDialog { background: %1; }"
              "QLineEdit#titleEdit { border: none; border-bottom: 1px solid %2; border-radius: 0; background: "
              "transparent;"
              "  padding: 4px 2px 8px 2px; color: %3; }"
              "QLineEdit#titleEdit:focus { border-bottom: 2px solid %4; padding-bottom: 7px; }"
              "QLabel#fieldIcon { color: %5; }"
              "QLabel#timeHint, QLabel#ruleHint { color: %5; }"
              "QLabel#timeHint[error=\"true\"], QLabel#ruleHint[error=\"true\"] { color: %6; }"
              "QLabel#formError { color: %6; }"
              "QLabel#readOnlyBanner { background: %7; border: 1px solid %2; border-radius: 6px; padding: 8px 10px;"
              "  color: %3; }"
              "QPushButton#saveButton { background: %4; color: %8; border: none; border-radius: 6px; padding: 6px 20px;"
              "  font-weight: 600; }"
              "QPushButton#saveButton:disabled { background: %2; color: %5; }"
              "QPushButton#cancelButton { background: %1; color: %3; border: 1px solid %2; border-radius: 6px;"
              "  padding: 6px 16px; }"
              "QPushButton#cancelButton:hover { background: %7; }"
              "QPushButton#addReminder { color: %4; border: none; padding: 2px 0; text-align: left; background: "
              "transparent; }"
              "QPushButton#addReminder:focus { text-decoration: underline; }"
              "QToolButton#templatesButton::menu-indicator { image: none; width: 0; }"
              "QToolButton#templatesButton { color: %4; border: none; padding: 2px 0; }")
              .arg(c.surface.name(), c.border.name(), c.text.name(), c.accent.name(), c.textMuted.name(),
                   c.nowLine.name(), c.surfaceAlt.name(), c.accentText.name());
    q->setStyleSheet(sheet);
    // The plain style outlines check boxes in a shade of the window colour, which vanishes on a
    // dark window; a mid-grey window colour for the box alone gives it a visible edge.
    for (QCheckBox *box : q->findChildren<QCheckBox *>()) {
        QPalette boxPalette = q->palette();
        boxPalette.setColor(QPalette::Window, c.textMuted);
        box->setPalette(boxPalette);
    }
    showCalendarColor();
}

void EventFormDialog::Private::fillCalendars(const QString &currentId, bool includeCurrentEvenIfReadOnly)
{
    const QSignalBlocker blocker(calendar);
    calendar->clear();
    for (const Calendar &entry : appState->calendars()->getAll()) {
        const bool isCurrent = entry.id == currentId;
        const QStringList components = StorageFormat::parseStringListJson(entry.supported_components);
        const bool holdsEvents = components.isEmpty() || components.contains(QLatin1String("VEVENT"));
        if (isCurrent ? (entry.is_read_only && !includeCurrentEvenIfReadOnly) : (entry.is_read_only || !holdsEvents))
            continue;
        calendar->addItem(swatchIcon(QColor(entry.color)), entry.name, entry.id);
        calendar->setItemData(calendar->count() - 1, entry.color, Qt::UserRole + 1);
    }
    const int index = calendar->findData(currentId);
    calendar->setCurrentIndex(index >= 0 ? index : 0);
    showCalendarColor();
}

void EventFormDialog::Private::showCalendarColor()
{
    const QColor color(calendar->currentData(Qt::UserRole + 1).toString());
    colors->setCalendarColor(color.isValid() ? color : QColor(QStringLiteral("#4285F4")));
}

void EventFormDialog::Private::fillRepeatLabels()
{
    using RepeatPresets::Preset;
    const QDateTime start = repeatAnchor();
    for (int i = 0; i < repeat->count(); ++i) {
        const auto preset = Preset(repeat->itemData(i).toInt());
        QString label;
        if (preset == Preset::None)
            label = tr("Does not repeat");
        else if (preset == Preset::Custom)
            label = tr("Custom…");
        else if (preset == Preset::Weekdays)
            label = tr("Every weekday (Monday to Friday)");
        else
            label = EventWording::repeatRule(RepeatPresets::ruleOf(preset), start);
        repeat->setItemText(i, label);
    }
}

// The start the repeat choices are worded from: its weekday, day of month and date where the
// event happens (in its own zone).
QDateTime EventFormDialog::Private::repeatAnchor() const
{
    const QDateTime start = times->start();
    return times->isAllDay() || !start.isValid() ? QDateTime(times->firstDay(), QTime(9, 0)) : start;
}

QString EventFormDialog::Private::currentRule() const
{
    using RepeatPresets::Preset;
    const auto preset = Preset(repeat->currentData().toInt());
    // An untouched choice keeps the rule exactly as it was written.
    if (preset == initialPreset && preset != Preset::Custom)
        return initialRule;
    if (preset == Preset::Custom)
        return RepeatPresets::normalizedCustomRule(customRule->text());
    return RepeatPresets::ruleOf(preset);
}

void EventFormDialog::Private::onRepeatChanged()
{
    using RepeatPresets::Preset;
    const bool custom = Preset(repeat->currentData().toInt()) == Preset::Custom;
    customRule->setVisible(custom);
    repeatStretch->setVisible(!custom);
    if (custom && customRule->text().isEmpty()) {
        // Start the custom rule from what was chosen before, so it only needs adjusting.
        const QString seed = initialRule.isEmpty() ? RepeatPresets::ruleOf(Preset::Weekly) : initialRule;
        customRule->setText(seed);
    }
    if (custom && !updating)
        customRule->setFocus();
    updateRuleHint();
    revalidate();
}

void EventFormDialog::Private::updateRuleHint()
{
    using RepeatPresets::Preset;
    const bool custom = Preset(repeat->currentData().toInt()) == Preset::Custom;
    const QString rule = RepeatPresets::normalizedCustomRule(customRule->text());
    // An unusable rule is explained by the validation, in the same place.
    if (!custom || !RepeatPresets::isRepeatingRule(rule))
        HintLabel::show(ruleHint, QString(), false);
    else
        HintLabel::show(ruleHint, EventWording::repeatRule(rule, repeatAnchor()), false);
}

EventFormDialog::Private::Problem EventFormDialog::Private::validationProblem() const
{
    using RepeatPresets::Preset;
    if (calendar->count() == 0)
        return {tr("There is no calendar to add events to."), error};
    // The time editor shows its own problems under the times.
    if (const QString timeProblem = times->problem(); !timeProblem.isEmpty())
        return {timeProblem, nullptr};
    if (Preset(repeat->currentData().toInt()) == Preset::Custom
        && !RepeatPresets::isRepeatingRule(RepeatPresets::normalizedCustomRule(customRule->text())))
        return {tr("This calendar repeats by FREQ=DAILY, FREQ=WEEKLY, FREQ=MONTHLY or FREQ=YEARLY; start the rule "
                   "with one of them."),
                ruleHint};
    return {};
}

void EventFormDialog::Private::revalidate()
{
    if (updating)
        return;
    updateRuleHint();
    const Problem problem = validationProblem();
    if (problem.where == error || problem.message.isEmpty())
        HintLabel::show(error, problem.message, true);
    if (problem.where && problem.where != error)
        HintLabel::show(problem.where, problem.message, true);
    saveButton->setEnabled(problem.message.isEmpty() && !readOnly);
    // A hint that appears makes room for itself rather than squeezing the fields.
    if (q->isVisible()) {
        q->layout()->activate();
        if (q->height() < q->sizeHint().height())
            q->resize(q->width(), q->sizeHint().height());
    }
}

Event EventFormDialog::Private::editedEvent() const
{
    Event event = original;
    const QString typedTitle = title->text().trimmed();
    // An event without a name still blocks time; every place that shows it (views, reminders,
    // other devices) then has something to show, and the placeholder invites a rename.
    event.title = typedTitle.isEmpty() ? tr("(No title)") : typedTitle;
    if (!original.title.isEmpty() && typedTitle == original.title.trimmed())
        event.title = original.title;
    event.calendar_id = calendar->currentData().toString();
    event.location = location->text();
    event.description = description->toPlainText();
    event.color = colors->color();
    event.reminders = reminders->reminders();
    event.recurrence_rule = currentRule();

    event.is_all_day = times->isAllDay();
    event.start_time = times->start();
    event.end_time = times->end();
    if (event.is_all_day) {
        // All-day dates carry no zone; an event that was timed keeps none either.
        if (!original.is_all_day || isNew)
            event.timezone = QStringLiteral("UTC");
        if (!isNew && original.is_all_day && !original.end_time && *event.end_time == event.start_time.addDays(1))
            event.end_time.reset();
    } else {
        event.timezone = times->zoneId();
        if (!isNew && !original.is_all_day && !original.end_time && *event.end_time == event.start_time)
            event.end_time.reset();
    }
    // Times the user did not move keep their stored form.
    if (!isNew && event.is_all_day && original.is_all_day && original.start_time.isValid()) {
        if (EventWording::allDayDate(original.start_time) == event.start_time.date())
            event.start_time = original.start_time;
        if (original.end_time && event.end_time
            && EventWording::allDayDate(*original.end_time) == event.end_time->date())
            event.end_time = original.end_time;
    }
    if (!isNew && event.is_all_day == original.is_all_day) {
        if (event.start_time == original.start_time)
            event.start_time = original.start_time;
        if (event.end_time && original.end_time && *event.end_time == *original.end_time)
            event.end_time = original.end_time;
    }
    return event;
}

std::optional<Event> EventFormDialog::Private::storedAfterSave(const Event &edited, EventEditor::Scope scope) const
{
    EventRepository *events = appState->events();
    if (!EventEditor::isPartOfSeries(original))
        return events->getById(original.id);
    const bool generated = !original.recurrence_rule.isEmpty();
    if (scope == EventEditor::Scope::ThisEvent) {
        if (!generated)
            return events->getById(original.id);
        const std::optional<Event> override
            = events->getByUidAndRecurrenceId(original.uid, original.calendar_id, original.recurrence_id);
        return override ? events->getById(override->id) : std::nullopt;
    }
    const QString masterUid = generated ? original.uid : original.master_event_uid;
    std::optional<Event> master = events->getByUidAndRecurrenceId(masterUid, original.calendar_id, QString());
    if (scope == EventEditor::Scope::AllEvents || !master)
        return master ? events->getById(master->id) : std::nullopt;
    // This and following: the new series starts where the edited occurrence now starts. Stored
    // times compare as text with their offsets, hence a day of margin on either side.
    const QList<Event> around
        = events->getInRange(edited.start_time.addDays(-1), edited.start_time.addDays(1), {original.calendar_id});
    for (const Event &row : around) {
        if (row.id != master->id && row.start_time == edited.start_time && !row.recurrence_rule.isEmpty()
            && row.title == edited.title)
            return events->getById(row.id);
    }
    return master;
}

void EventFormDialog::Private::trySave()
{
    if (readOnly)
        return;
    revalidate();
    if (!saveButton->isEnabled())
        return;
    const Event edited = editedEvent();

    if (isNew) {
        const std::optional<Event> created = editor->create(edited);
        if (!created)
            return;
        saved = appState->events()->getById(created->id);
        if (!saved)
            saved = created;
        q->accept();
        return;
    }

    Event unchangedCheck = edited;
    if (original.recurrence_rule.isEmpty() && !original.master_event_uid.isEmpty())
        unchangedCheck.recurrence_rule = QString(); // an override's own row has no rule
    if (unchangedCheck == original && edited.recurrence_rule == initialRule) {
        // Nothing to write: a save without changes does not send the event to its server again.
        saved = appState->events()->getById(original.id);
        if (!saved)
            saved = original;
        q->accept();
        return;
    }

    EventEditor::Scope scope = EventEditor::Scope::ThisEvent;
    if (EventEditor::isPartOfSeries(original)) {
        if (!RecurrenceScopeDialog::ask(q, &scope, tr("Save repeating event")))
            return;
        if (scope == EventEditor::Scope::ThisEvent && edited.recurrence_rule != initialRule) {
            HintLabel::show(error, tr("A new repeat applies to this and following events, or to all events."), true);
            return;
        }
    }
    HintLabel::show(error, QString(), true);
    if (!editor->save(original, edited, scope))
        return;
    saved = storedAfterSave(edited, scope);
    if (!saved)
        saved = edited;
    q->accept();
}

EventFormDialog::EventFormDialog(AppState *appState, EventEditor *editor, QWidget *parent)
    : QDialog(parent)
    , d(std::make_unique<Private>(this, appState, editor))
{
    setWindowTitle(tr("New Event"));
    d->build();
    setMinimumWidth(640);
}

EventFormDialog::~EventFormDialog() = default;

void EventFormDialog::setNewEvent(const QDateTime &start, const QDateTime &end, bool allDay)
{
    d->isNew = true;
    d->readOnly = false;
    setWindowTitle(tr("New Event"));
    Event draft;
    draft.timezone = allDay ? QStringLiteral("UTC") : TimeZones::systemZoneId();
    draft.is_all_day = allDay;
    const CalendarChoice::Choice choice = CalendarChoice::forNewEvents(*d->appState->database());
    draft.calendar_id = choice.calendar ? choice.calendar->id : QString();
    Reminder reminder;
    reminder.minutes_before = 15;
    draft.reminders = {reminder};
    d->original = draft;
    d->initialRule.clear();
    d->initialPreset = RepeatPresets::Preset::None;

    d->fillCalendars(draft.calendar_id, false);
    d->title->clear();
    d->location->clear();
    d->description->clear();
    d->colors->setColor(QString());
    d->reminders->setReminders(draft.reminders);
    d->updating = true;
    d->repeat->setCurrentIndex(d->repeat->findData(int(RepeatPresets::Preset::None)));
    d->customRule->clear();
    QDateTime shownStart = start;
    QDateTime shownEnd = end;
    if (allDay) {
        // A day picked in a view arrives as a local date: keep the date, drop the clock.
        shownStart = QDateTime(start.date(), QTime(0, 0), QTimeZone::utc());
        const QDate afterLast = end.isValid() && end.date() > start.date() ? end.date() : start.date().addDays(1);
        shownEnd = QDateTime(afterLast, QTime(0, 0), QTimeZone::utc());
    } else if (!shownEnd.isValid() || shownEnd < shownStart) {
        shownEnd = shownStart.addSecs(3600);
    }
    // An all-day event turned timed takes the user's zone.
    d->times->setTimes(shownStart, shownEnd, allDay, TimeZones::systemZoneId());
    d->updating = false;
    d->fillRepeatLabels();
    d->onRepeatChanged();

    const QList<Template> presets = d->appState->templates()->getAll();
    d->templates->setVisible(!presets.isEmpty());
    if (!presets.isEmpty()) {
        auto *menu = new QMenu(d->templates);
        for (const Template &preset : presets)
            menu->addAction(preset.name, this, [this, preset] { applyTemplate(preset); });
        delete d->templates->menu();
        d->templates->setMenu(menu);
    }
    d->colors->setEnabled(true);
    d->title->setFocus();
}

void EventFormDialog::applyTemplate(const Template &preset)
{
    if (!d->isNew)
        return;
    d->title->setText(preset.title);
    d->location->setText(preset.location);
    d->description->setPlainText(preset.description);
    d->colors->setColor(preset.color);
    if (!preset.calendar_id.isEmpty()) {
        const int index = d->calendar->findData(preset.calendar_id);
        if (index >= 0)
            d->calendar->setCurrentIndex(index);
    }
    QList<Reminder> presetReminders;
    for (int minutes : preset.reminders) {
        Reminder reminder;
        reminder.minutes_before = minutes;
        presetReminders.append(reminder);
    }
    d->reminders->setReminders(presetReminders);

    const QDate day = d->times->firstDay();
    const QString zoneId = d->times->zoneId();
    if (preset.is_all_day) {
        const int days = qMax(1, (preset.duration_minutes + 1439) / 1440);
        d->times->setTimes(QDateTime(day, QTime(0, 0), QTimeZone::utc()),
                           QDateTime(day.addDays(days), QTime(0, 0), QTimeZone::utc()), true, zoneId);
    } else {
        QDateTime start = d->times->start();
        if (d->times->isAllDay() || !start.isValid())
            start = QDateTime(day, QTime(9, 0),
                              d->times->zone().isValid() ? d->times->zone() : QTimeZone::systemTimeZone());
        d->times->setTimes(start, start.addSecs(qint64(qMax(0, preset.duration_minutes)) * 60), false, zoneId);
    }
    const RepeatPresets::Preset repeatPreset = RepeatPresets::presetOf(preset.recurrence_rule);
    if (repeatPreset == RepeatPresets::Preset::Custom)
        d->customRule->setText(preset.recurrence_rule);
    d->repeat->setCurrentIndex(d->repeat->findData(int(repeatPreset)));
    d->onRepeatChanged();
}

void EventFormDialog::setEvent(const Event &occurrence)
{
    d->isNew = false;
    d->original = occurrence;
    d->templates->hide();

    const std::optional<Calendar> owner = d->appState->calendars()->getById(occurrence.calendar_id);
    d->readOnly = owner && owner->is_read_only;
    setWindowTitle(d->readOnly ? tr("Event Details") : tr("Edit Event"));

    // An override row carries no rule; the series it belongs to does.
    d->initialRule = occurrence.recurrence_rule;
    if (occurrence.recurrence_rule.isEmpty() && !occurrence.master_event_uid.isEmpty()
        && !occurrence.recurrence_id.isEmpty()) {
        if (const std::optional<Event> master = d->appState->events()->getByUidAndRecurrenceId(
                occurrence.master_event_uid, occurrence.calendar_id, QString()))
            d->initialRule = master->recurrence_rule;
    }
    d->initialPreset = RepeatPresets::presetOf(d->initialRule);

    d->fillCalendars(occurrence.calendar_id, true);
    // A repeating event stays in its calendar: moving a series is not something a save can do.
    d->calendar->setEnabled(!d->readOnly && !EventEditor::isPartOfSeries(occurrence));
    if (EventEditor::isPartOfSeries(occurrence))
        d->calendar->setToolTip(tr("A repeating event stays in its calendar."));

    d->title->setText(occurrence.title);
    d->location->setText(occurrence.location);
    d->description->setPlainText(occurrence.description);
    d->colors->setColor(occurrence.color);
    d->reminders->setReminders(occurrence.reminders);
    d->updating = true;
    d->customRule->setText(d->initialPreset == RepeatPresets::Preset::Custom ? d->initialRule : QString());
    d->customRule->setCursorPosition(0);
    d->repeat->setCurrentIndex(d->repeat->findData(int(d->initialPreset)));
    d->times->setTimes(occurrence.start_time, occurrence.end_time, occurrence.is_all_day, occurrence.timezone);
    d->updating = false;
    d->fillRepeatLabels();
    d->onRepeatChanged();

    for (QWidget *widget : std::initializer_list<QWidget *>{d->title, d->repeat, d->customRule, d->colors, d->location})
        widget->setEnabled(!d->readOnly);
    d->times->setReadOnly(d->readOnly);
    d->description->setReadOnly(d->readOnly);
    d->reminders->setReadOnly(d->readOnly);
    d->saveButton->setVisible(!d->readOnly);
    d->saveButton->setDefault(!d->readOnly);
    d->cancelButton->setText(d->readOnly ? tr("Close") : tr("Cancel"));
    d->cancelButton->setDefault(d->readOnly);
    d->banner->setVisible(d->readOnly);
    // Read-only, an empty field is nothing to look at and no invitation to fill in.
    d->location->setPlaceholderText(d->readOnly ? QString() : tr("Add location"));
    d->description->setPlaceholderText(d->readOnly ? QString() : tr("Add description"));
    const bool showLocation = !d->readOnly || !occurrence.location.isEmpty();
    const bool showNotes = !d->readOnly || !occurrence.description.isEmpty();
    d->location->setVisible(showLocation);
    d->locationIcon->setVisible(showLocation);
    d->description->setVisible(showNotes);
    d->notesIcon->setVisible(showNotes);
    d->colors->setVisible(!d->readOnly);
    d->colorIcon->setVisible(!d->readOnly);
    if (d->readOnly) {
        d->banner->setText(tr("This event is in \"%1\", which is read-only.").arg(owner->name));
        d->cancelButton->setFocus();
    } else {
        d->title->setFocus();
        d->title->selectAll();
    }
    d->revalidate();
}

Event EventFormDialog::editedEvent() const
{
    return d->editedEvent();
}

bool EventFormDialog::save()
{
    d->trySave();
    return result() == QDialog::Accepted && d->saved.has_value();
}

Event EventFormDialog::savedEvent() const
{
    return d->saved.value_or(Event());
}
