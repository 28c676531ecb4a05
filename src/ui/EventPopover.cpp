// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/EventPopover.h"

#include "app/AppState.h"
#include "app/NotificationService.h"
#include "storage/Clock.h"
#include "storage/EventRepository.h"
#include "ui/EventEditor.h"
#include "ui/EventWording.h"
#include "ui/IconFont.h"
#include "ui/RecurrenceScopeDialog.h"
#include "ui/SpanCache.h"
#include "ui/ThemeManager.h"
#include "ui/Typography.h"

#include <QApplication>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTextLayout>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr int kShadow = 16; // transparent margin around the card that holds its shadow
constexpr int kCardWidth = 360;
constexpr int kPadding = 16;
constexpr int kIconColumn = 26;
constexpr int kGap = 6; // between the anchor and the card
constexpr int kDescriptionLines = 4;
constexpr int kMaxAttendees = 6;

// `text` cut to at most `maxLines` lines of `width`, the last one ending in an ellipsis when cut.
QString elideLines(const QString &text, const QFont &font, int width, int maxLines)
{
    QString flat = text.trimmed();
    flat.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(flat, font);
    layout.beginLayout();
    QString result;
    int lines = 0;
    const QFontMetrics metrics(font);
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const QString piece = flat.mid(line.textStart(), line.textLength());
        if (++lines == maxLines) {
            const bool more = line.textStart() + line.textLength() < flat.size();
            QString last = more ? flat.mid(line.textStart()) : piece;
            last.replace(QChar::LineSeparator, QLatin1Char(' '));
            result += metrics.elidedText(last.trimmed(), Qt::ElideRight, width);
            break;
        }
        result += piece;
    }
    layout.endLayout();
    return result.replace(QChar::LineSeparator, QLatin1Char('\n')).trimmed();
}

QString statusText(const QString &status)
{
    if (status == QLatin1String("accepted"))
        return EventPopover::tr("Going");
    if (status == QLatin1String("declined"))
        return EventPopover::tr("Not going");
    if (status == QLatin1String("tentative"))
        return EventPopover::tr("Maybe");
    if (status == QLatin1String("delegated"))
        return EventPopover::tr("Delegated");
    return EventPopover::tr("Awaiting reply");
}

QPixmap swatch(const QColor &color, qreal ratio)
{
    QPixmap pixmap(QSize(12, 12) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(1, 1, 10, 10), 3, 3);
    return pixmap;
}

} // namespace

class EventPopover::Private
{
public:
    AppState *appState;
    SpanCache *cache;
    EventEditor *editor;
    Event occurrence;
    QColor color;
    QString timeText; // as worded, before the line-keeping spaces of the label

    QWidget *bar = nullptr;
    QLabel *title = nullptr;
    QLabel *time = nullptr;
    QLabel *repeat = nullptr;
    QGridLayout *details = nullptr;
    QPushButton *editButton = nullptr;
    QPushButton *deleteButton = nullptr;
    QWidget *buttonRow = nullptr;

    QLabel *addDetail(QWidget *owner, int row, char16_t glyph, const QString &text, Qt::TextFormat format,
                      const QPixmap &iconPixmap = {});
};

QLabel *EventPopover::Private::addDetail(QWidget *owner, int row, char16_t glyph, const QString &text,
                                         Qt::TextFormat format, const QPixmap &iconPixmap)
{
    auto *icon = new QLabel(owner);
    icon->setObjectName(QStringLiteral("detailIcon"));
    if (!iconPixmap.isNull()) {
        icon->setPixmap(iconPixmap);
        icon->setContentsMargins(3, 4, 0, 0);
    } else {
        icon->setText(IconFont::text(glyph));
        icon->setFont(IconFont::font(17));
    }
    icon->setFixedWidth(kIconColumn);
    icon->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto *label = new QLabel(owner);
    label->setTextFormat(format);
    label->setText(text);
    label->setObjectName(QStringLiteral("detailText"));
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse);
    details->addWidget(icon, row, 0, Qt::AlignTop);
    details->addWidget(label, row, 1);
    return label;
}

EventPopover::EventPopover(AppState *appState, SpanCache *cache, EventEditor *editor, QWidget *parent)
    : QFrame(parent)
    , d(std::make_unique<Private>())
{
    d->appState = appState;
    d->cache = cache;
    d->editor = editor;
    setObjectName(QStringLiteral("EventPopover"));
    // A card drawn over the window it belongs to, not a window of its own: its rounded corners and
    // shadow then blend with what is beneath on every desktop, composited or not.
    hide();
    setFixedWidth(kCardWidth + 2 * kShadow);

    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(kShadow + kPadding, kShadow + kPadding - 2, kShadow + kPadding, kShadow + kPadding - 4);
    outer->setSpacing(12);
    outer->setSizeConstraint(QLayout::SetFixedSize);

    auto *header = new QHBoxLayout;
    header->setSpacing(10);
    d->bar = new QWidget(this);
    d->bar->setObjectName(QStringLiteral("colorBar"));
    d->bar->setFixedWidth(4);
    d->bar->setAttribute(Qt::WA_StyledBackground);
    header->addWidget(d->bar);
    auto *headerText = new QVBoxLayout;
    headerText->setSpacing(3);
    d->title = new QLabel(this);
    d->title->setObjectName(QStringLiteral("popoverTitle"));
    d->title->setWordWrap(true);
    d->title->setTextFormat(Qt::PlainText);
    d->title->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont titleFont = Typography::semibold(font());
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.25);
    d->title->setFont(titleFont);
    d->time = new QLabel(this);
    d->time->setObjectName(QStringLiteral("popoverTime"));
    d->time->setWordWrap(true);
    d->time->setTextFormat(Qt::PlainText);
    d->repeat = new QLabel(this);
    d->repeat->setObjectName(QStringLiteral("popoverRepeat"));
    d->repeat->setWordWrap(true);
    d->repeat->setTextFormat(Qt::PlainText);
    headerText->addWidget(d->title);
    headerText->addWidget(d->time);
    headerText->addWidget(d->repeat);
    header->addLayout(headerText, 1);
    outer->addLayout(header);

    d->details = new QGridLayout;
    d->details->setHorizontalSpacing(4);
    d->details->setVerticalSpacing(8);
    d->details->setColumnStretch(1, 1);
    outer->addLayout(d->details);

    d->buttonRow = new QWidget(this);
    auto *buttons = new QHBoxLayout(d->buttonRow);
    buttons->setContentsMargins(0, 2, 0, 0);
    buttons->setSpacing(8);
    d->deleteButton = new QPushButton(tr("Delete"), d->buttonRow);
    d->deleteButton->setObjectName(QStringLiteral("deleteButton"));
    d->deleteButton->setToolTip(tr("Delete this event (Delete)"));
    d->editButton = new QPushButton(tr("Edit"), d->buttonRow);
    d->editButton->setObjectName(QStringLiteral("editButton"));
    d->editButton->setToolTip(tr("Open the event to change it (Enter)"));
    d->editButton->setDefault(true);
    buttons->addWidget(d->deleteButton);
    buttons->addStretch(1);
    buttons->addWidget(d->editButton);
    outer->addWidget(d->buttonRow);

    connect(d->editButton, &QPushButton::clicked, this, [this] {
        const Event occurrence = d->occurrence;
        hide();
        emit editRequested(occurrence);
    });
    connect(d->deleteButton, &QPushButton::clicked, this, &EventPopover::deleteOccurrence);
    connect(appState->theme(), &ThemeManager::themeChanged, this, [this] {
        if (isVisible())
            applyTheme();
    });
}

EventPopover::~EventPopover() = default;

Event EventPopover::occurrence() const
{
    return d->occurrence;
}

QString EventPopover::timeText() const
{
    return d->timeText;
}

QString EventPopover::repeatText() const
{
    return d->repeat->isHidden() ? QString() : d->repeat->text();
}

void EventPopover::applyTheme()
{
    const ThemeManager::Colors &c = d->appState->theme()->colors();
    setPalette(d->appState->theme()->palette());
    setStyleSheet(
        QStringLiteral("QLabel { color: %1; background: transparent; }"
                       "QLabel#popoverTime, QLabel#popoverRepeat, QLabel#detailIcon, QLabel#muted { color: %2; }"
                       "QWidget#colorBar { background: %3; border-radius: 2px; }"
                       "QPushButton { border: 1px solid %4; border-radius: 6px; padding: 5px 14px;"
                       "  background: %5; color: %1; }"
                       "QPushButton:hover { background: %6; }"
                       "QPushButton:focus { border-color: %7; }"
                       "QPushButton#editButton { background: %7; color: %8; border-color: %7; }"
                       "QPushButton#deleteButton { color: %9; }")
            .arg(c.text.name(), c.textMuted.name(), d->color.name(), c.border.name(), c.surface.name(),
                 c.surfaceAlt.name(), c.accent.name(), c.accentText.name(), c.nowLine.name()));
    d->editButton->setIcon(IconFont::icon(IconFont::Glyph::Edit, c.accentText));
    d->deleteButton->setIcon(IconFont::icon(IconFont::Glyph::Delete, c.nowLine));
    update();
}

void EventPopover::showFor(const Event &occurrence, const QRect &anchor)
{
    d->occurrence = occurrence;
    d->color = d->cache ? d->cache->colorOf(occurrence) : QColor(occurrence.color);
    if (!d->color.isValid())
        d->color = QColor(QStringLiteral("#4285F4"));
    const bool readOnly = d->cache && d->cache->isReadOnly(occurrence);
    const bool twentyFour = EventWording::prefers24Hour(d->appState->preferences());

    d->title->setText(EventWording::displayTitle(occurrence.title));
    d->timeText = EventWording::timeRange(occurrence, twentyFour, Clock::nowLocal().date().year());
    // "3:30 PM" and "January 10" are never split over two lines.
    QString shownTime = d->timeText;
    static const QRegularExpression keepTogether(QStringLiteral("(\\d) (AM|PM)"));
    shownTime.replace(keepTogether, QStringLiteral("\\1\u00a0\\2"));
    static const QRegularExpression monthDay(QStringLiteral("([^\\s,·–\\d]) (\\d)"));
    shownTime.replace(monthDay, QStringLiteral("\\1\u00a0\\2"));
    d->time->setText(shownTime);

    // The rule lives on the series: a generated occurrence carries it, an override names its master.
    QString rule = occurrence.recurrence_rule;
    QDateTime seriesStart = occurrence.start_time;
    std::optional<Event> master;
    if (!rule.isEmpty())
        master = d->appState->events()->getById(occurrence.id);
    else if (!occurrence.master_event_uid.isEmpty() && !occurrence.recurrence_id.isEmpty())
        master = d->appState->events()->getByUidAndRecurrenceId(occurrence.master_event_uid, occurrence.calendar_id,
                                                                QString());
    if (master) {
        rule = master->recurrence_rule;
        seriesStart = master->start_time;
    }
    if (!occurrence.is_all_day)
        seriesStart = seriesStart.toLocalTime();
    const QString ruleText = EventWording::repeatRule(rule, seriesStart);
    d->repeat->setText(ruleText);
    d->repeat->setVisible(!ruleText.isEmpty());

    while (QLayoutItem *item = d->details->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    const int textWidth = kCardWidth - 2 * kPadding - kIconColumn - 4;
    int row = 0;
    if (d->cache) {
        const auto calendar = d->cache->calendars().constFind(occurrence.calendar_id);
        if (calendar != d->cache->calendars().constEnd()) {
            QString name = calendar->name;
            if (readOnly)
                name = tr("%1 (read-only)").arg(name);
            d->addDetail(this, row++, 0, name, Qt::PlainText, swatch(QColor(calendar->color), devicePixelRatioF()));
        }
    }
    if (!occurrence.location.trimmed().isEmpty())
        d->addDetail(this, row++, IconFont::Glyph::LocationOn, occurrence.location.trimmed(), Qt::PlainText);
    if (!occurrence.conference_url.isEmpty()) {
        const QString url = QUrl(occurrence.conference_url).toString(QUrl::FullyEncoded);
        QLabel *link = d->addDetail(
            this, row++, IconFont::Glyph::Videocam,
            QStringLiteral("<a href=\"%1\">%2</a>").arg(url.toHtmlEscaped(), tr("Join online meeting")), Qt::RichText);
        link->setOpenExternalLinks(true);
    }
    if (!occurrence.description.trimmed().isEmpty()) {
        d->addDetail(this, row++, IconFont::Glyph::Notes,
                     elideLines(occurrence.description, font(), textWidth, kDescriptionLines), Qt::PlainText);
    }
    if (!occurrence.attendees.isEmpty()) {
        QStringList lines;
        for (qsizetype i = 0; i < occurrence.attendees.size() && i < kMaxAttendees; ++i) {
            const Attendee &attendee = occurrence.attendees.at(i);
            const QString who = attendee.name.isEmpty() ? attendee.email : attendee.name;
            lines.append(QStringLiteral("%1 <span style=\"color:%2\">· %3</span>")
                             .arg(who.toHtmlEscaped(), d->appState->theme()->colors().textMuted.name(),
                                  statusText(attendee.status).toHtmlEscaped()));
        }
        if (occurrence.attendees.size() > kMaxAttendees)
            lines.append(tr("and %1 more").arg(occurrence.attendees.size() - kMaxAttendees));
        d->addDetail(this, row++, IconFont::Glyph::Group, lines.join(QStringLiteral("<br>")), Qt::RichText);
    }
    if (!occurrence.reminders.isEmpty()) {
        QList<int> minutes;
        for (const Reminder &reminder : occurrence.reminders) {
            if (!minutes.contains(reminder.minutes_before))
                minutes.append(reminder.minutes_before);
        }
        std::sort(minutes.begin(), minutes.end());
        QStringList labels;
        for (int value : std::as_const(minutes))
            labels.append(reminderOffsetLabel(value));
        d->addDetail(this, row++, IconFont::Glyph::Notifications, labels.join(QStringLiteral(", ")), Qt::PlainText);
    }
    for (int i = 0; i < d->details->count(); ++i) {
        if (auto *label = qobject_cast<QLabel *>(d->details->itemAt(i)->widget());
            label && label->objectName() == QLatin1String("detailText"))
            label->setFixedWidth(textWidth);
    }
    d->title->setFixedWidth(kCardWidth - 2 * kPadding - 14);
    d->time->setFixedWidth(kCardWidth - 2 * kPadding - 14);
    d->repeat->setFixedWidth(kCardWidth - 2 * kPadding - 14);

    d->deleteButton->setVisible(!readOnly);
    d->editButton->setVisible(!readOnly);
    d->buttonRow->setVisible(!readOnly);
    applyTheme();
    adjustSize();

    QRect available;
    if (QWidget *host = parentWidget()) {
        available = QRect(host->mapToGlobal(QPoint(0, 0)), host->size());
    } else {
        const QScreen *screen = QGuiApplication::screenAt(anchor.center());
        available = screen ? screen->availableGeometry() : QRect(0, 0, 1920, 1080);
    }
    const QRect card = placement(anchor, QSize(kCardWidth, height() - 2 * kShadow), available);
    const QPoint topLeft = card.topLeft() - QPoint(kShadow, kShadow);
    move(parentWidget() ? parentWidget()->mapFromGlobal(topLeft) : topLeft);
    show();
    raise();
    qApp->installEventFilter(this);
    if (!readOnly)
        d->editButton->setFocus();
    else
        setFocus();
}

QRect EventPopover::placement(const QRect &anchor, const QSize &card, const QRect &available)
{
    const auto fits = [&](const QRect &rect) {
        return available.contains(rect);
    };
    const int top
        = qBound(available.top(), anchor.top(), qMax(available.top(), available.bottom() - card.height() + 1));
    const QRect right(QPoint(anchor.right() + 1 + kGap, top), card);
    if (fits(right))
        return right;
    const QRect left(QPoint(anchor.left() - kGap - card.width(), top), card);
    if (fits(left))
        return left;
    // An anchor too wide to sit beside (a bar across the week): below it, else above it.
    const int x = qBound(available.left(), anchor.center().x() - card.width() / 2,
                         qMax(available.left(), available.right() - card.width() + 1));
    const QRect below(QPoint(x, anchor.bottom() + 1 + kGap), card);
    if (fits(below))
        return below;
    const QRect above(QPoint(x, anchor.top() - kGap - card.height()), card);
    if (fits(above))
        return above;
    return QRect(QPoint(x, top), card);
}

void EventPopover::deleteOccurrence()
{
    const Event occurrence = d->occurrence;
    QWidget *owner = parentWidget();
    hide();
    EventEditor::Scope scope = EventEditor::Scope::ThisEvent;
    // For a series, choosing how far the delete reaches is the confirmation: it has a Cancel and
    // the delete can be undone like any other.
    if (EventEditor::isPartOfSeries(occurrence)) {
        if (!RecurrenceScopeDialog::ask(owner, &scope, tr("Delete repeating event")))
            return;
    } else {
        QMessageBox box(QMessageBox::Question, tr("Delete event?"),
                        EventWording::deleteQuestion(EventWording::displayTitle(occurrence.title)),
                        QMessageBox::NoButton, owner);
        box.setObjectName(QStringLiteral("deleteConfirmation"));
        QPushButton *confirm = box.addButton(tr("Delete"), QMessageBox::DestructiveRole);
        confirm->setObjectName(QStringLiteral("confirmDelete"));
        box.addButton(QMessageBox::Cancel);
        box.setDefaultButton(confirm);
        box.exec();
        if (box.clickedButton() != confirm)
            return;
    }
    d->editor->remove(occurrence, scope);
}

bool EventPopover::eventFilter(QObject *watched, QEvent *event)
{
    // A press anywhere outside the card closes it and goes on to what was pressed, so a click on
    // another event opens that one straight away.
    if (isVisible() && event->type() == QEvent::MouseButtonPress) {
        const auto *press = static_cast<QMouseEvent *>(event);
        const QRect card = QRect(mapToGlobal(QPoint(0, 0)), size()).adjusted(kShadow, kShadow, -kShadow, -kShadow);
        if (!card.contains(press->globalPosition().toPoint()))
            hide();
    }
    return QFrame::eventFilter(watched, event);
}

void EventPopover::hideEvent(QHideEvent *event)
{
    qApp->removeEventFilter(this);
    QFrame::hideEvent(event);
}

void EventPopover::keyPressEvent(QKeyEvent *event)
{
    const bool writable = !d->buttonRow->isHidden();
    switch (event->key()) {
    case Qt::Key_Escape:
        hide();
        return;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        if (writable)
            deleteOccurrence();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (focusWidget() == d->deleteButton && writable)
            d->deleteButton->click();
        else if (writable)
            d->editButton->click();
        return;
    default:
        QFrame::keyPressEvent(event);
    }
}

void EventPopover::paintEvent(QPaintEvent *)
{
    const ThemeManager::Colors &c = d->appState->theme()->colors();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF card = QRectF(rect()).adjusted(kShadow, kShadow, -kShadow, -kShadow);
    constexpr qreal radius = 10.0;

    // A soft shadow: rings of fading opacity, a little lower than the card.
    QColor shadow = c.shadow;
    const qreal strength = shadow.alphaF();
    painter.setPen(Qt::NoPen);
    for (int i = kShadow; i >= 1; --i) {
        const qreal fade = 1.0 - qreal(i) / kShadow;
        shadow.setAlphaF(strength * fade * fade * 0.22);
        painter.setBrush(shadow);
        painter.drawRoundedRect(card.adjusted(-i, -i + 3, i, i + 3), radius + i, radius + i);
    }

    painter.setBrush(c.surface);
    painter.setPen(QPen(c.border, 1.0));
    painter.drawRoundedRect(card.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}
