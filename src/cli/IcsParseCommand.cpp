// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonText.h"
#include "ical/ICal.h"
#include "storage/StorageFormat.h"

#include <QCoreApplication>
#include <QFile>

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kbcal)
};

// Writes UTF-8 to standard output in large pieces. A feed of 100,000 events gives a few hundred
// megabytes of JSON, so the records are written one at a time instead of as one document.
class OutputBuffer
{
public:
    explicit OutputBuffer(QTextStream &out)
        : m_out(out)
    { }
    ~OutputBuffer() { flush(); }

    void append(QByteArrayView bytes)
    {
        m_buffer.append(bytes);
        if (m_buffer.size() >= kFlushBytes)
            flush();
    }

    template<typename Record>
    void appendRecord(const Record &record)
    {
        JsonText::appendRecord(m_buffer, record);
        if (m_buffer.size() >= kFlushBytes)
            flush();
    }

    void flush()
    {
        if (m_buffer.isEmpty())
            return;
        // A stream on a device takes the bytes as they are; one on a string (tests) gets text.
        if (QIODevice *device = m_out.device()) {
            m_out.flush();
            device->write(m_buffer);
        } else {
            m_out << QString::fromUtf8(m_buffer);
        }
        m_buffer.truncate(0);
    }

private:
    static constexpr qsizetype kFlushBytes = 1 << 20;
    QTextStream &m_out;
    QByteArray m_buffer;
};

template<typename Record>
void writeJsonArray(OutputBuffer &output, const QList<Record> &records)
{
    output.append("[");
    for (qsizetype i = 0; i < records.size(); ++i) {
        output.append(i == 0 ? "\n" : ",\n");
        output.appendRecord(records.at(i));
    }
    output.append("\n]");
}

QString oneLine(QString text)
{
    text.replace(QLatin1Char('\r'), QLatin1Char(' '));
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return text;
}

QString timeText(const QDateTime &value)
{
    return value.isValid() ? StorageFormat::dateTimeText(value) : QStringLiteral("-");
}

QString timeText(const std::optional<QDateTime> &value)
{
    return value ? timeText(*value) : QStringLiteral("-");
}

QString titleText(const QString &title)
{
    return title.isEmpty() ? Text::tr("(no title)") : oneLine(title);
}

QString eventLine(const Event &event)
{
    QString line = QStringLiteral("event  %1  %2  %3")
                       .arg(timeText(event.start_time), timeText(event.end_time), titleText(event.title));
    QStringList notes;
    if (event.is_all_day)
        notes.append(Text::tr("all day"));
    if (!event.recurrence_rule.isEmpty())
        notes.append(Text::tr("repeats %1").arg(oneLine(event.recurrence_rule)));
    if (!event.recurrence_id.isEmpty())
        notes.append(Text::tr("changed occurrence %1").arg(oneLine(event.recurrence_id)));
    notes.append(Text::tr("uid %1").arg(oneLine(event.uid)));
    return line + QStringLiteral("  [") + notes.join(QStringLiteral("; ")) + QLatin1Char(']');
}

QString taskLine(const Task &task)
{
    QStringList notes;
    if (task.due_date)
        notes.append(Text::tr("due %1").arg(timeText(task.due_date)));
    if (!task.categories.isEmpty())
        notes.append(Text::tr("categories %1").arg(oneLine(task.categories.join(QStringLiteral(", ")))));
    notes.append(Text::tr("uid %1").arg(oneLine(task.uid)));
    return QStringLiteral("task   %1  %2  [%3]")
        .arg(oneLine(task.status), titleText(task.title), notes.join(QStringLiteral("; ")));
}

int run(CommandContext &context)
{
    const QString path = context.arguments().value(0);
    QByteArray text;
    if (path.isEmpty() || path == QLatin1String("-")) {
        if (QIODevice *in = context.in())
            text = in->readAll();
    } else {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return context.fail(Text::tr("cannot read %1: %2").arg(path, file.errorString()));
        text = file.readAll();
        if (file.error() != QFileDevice::NoError)
            return context.fail(Text::tr("cannot read %1: %2").arg(path, file.errorString()));
    }

    const QList<Event> events = ICal::parseEvents(text);
    const QList<Task> tasks = ICal::parseTasks(text);
    text = QByteArray();

    if (context.json()) {
        OutputBuffer output(context.out());
        output.append("{\"events\":");
        writeJsonArray(output, events);
        output.append(",\"tasks\":");
        writeJsonArray(output, tasks);
        output.append("}\n");
        return 0;
    }
    QTextStream &out = context.out();
    for (const Event &event : events)
        out << eventLine(event) << '\n';
    for (const Task &task : tasks)
        out << taskLine(task) << '\n';
    if (events.isEmpty() && tasks.isEmpty())
        out << Text::tr("No events or tasks found.") << '\n';
    out.flush();
    return 0;
}

} // namespace

CommandDefinition icsParseCommand()
{
    CommandDefinition definition;
    definition.words = {QStringLiteral("ics"), QStringLiteral("parse")};
    definition.synopsis = QStringLiteral("[FILE|-] [--json]");
    definition.summary = Text::tr("Read iCalendar text and print its events and tasks.");
    definition.description
        = Text::tr("Reads iCalendar text from FILE, or from standard input when FILE is - or absent, with the "
                   "calendar's own reader, and prints the events and the tasks it finds, each in the order of "
                   "the text. The calendar database is not touched.");
    definition.maxArguments = 1;
    definition.run = run;
    return definition;
}
