// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/PlatformIntegration.h"

#include "app/AppEnvironment.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>
#include <QStandardPaths>

namespace {

#ifdef Q_OS_WIN

QString programPath()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationFilePath());
}

const QString kRunKey = QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run");

#else

// Quotes one Exec argument: double quotes, with ", `, $ and \ escaped, and every backslash of the
// result doubled again by the string escaping of desktop entry values.
QString execArgument(const QString &argument)
{
    QString quoted;
    for (const QChar c : argument) {
        if (c == QLatin1Char('"') || c == QLatin1Char('`') || c == QLatin1Char('$') || c == QLatin1Char('\\'))
            quoted += QLatin1Char('\\');
        quoted += c;
    }
    quoted = QLatin1Char('"') + quoted + QLatin1Char('"');
    return quoted.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
}

// The command that starts this very program, carrying the instance name along.
QString execCommand(const QString &arguments)
{
    QString command;
    const QString instance = AppEnvironment::instanceName();
    if (!instance.isEmpty())
        command = QStringLiteral("env CALENDAR_INSTANCE=") + execArgument(instance) + QLatin1Char(' ');
    return command + execArgument(QCoreApplication::applicationFilePath()) + QLatin1Char(' ') + arguments;
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Writes the file only when its content changes; the folder is created when missing.
void writeIfChanged(const QString &path, const QByteArray &content)
{
    if (QFileInfo::exists(path) && readFile(path) == content)
        return;
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(content);
        file.commit();
    }
}

QString iconName()
{
    return AppEnvironment::applicationId();
}

void installIcon()
{
    QFile icon(QStringLiteral(":/icons/app-icon.png"));
    if (!icon.open(QIODevice::ReadOnly))
        return;
    const QString path = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
        + QStringLiteral("/icons/hicolor/256x256/apps/") + iconName() + QStringLiteral(".png");
    writeIfChanged(path, icon.readAll());
}

// Sets one key of one group of a desktop-style key file, keeping every other line as it was.
QByteArray withKey(const QByteArray &content, const QByteArray &group, const QByteArray &key, const QByteArray &value)
{
    QList<QByteArray> lines = content.split('\n');
    if (!lines.isEmpty() && lines.constLast().isEmpty())
        lines.removeLast();
    const QByteArray header = '[' + group + ']';
    const QByteArray entry = key + '=' + value;
    qsizetype groupLine = -1;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines.at(i).trimmed() == header) {
            groupLine = i;
            break;
        }
    }
    if (groupLine < 0) {
        if (!lines.isEmpty() && !lines.constLast().trimmed().isEmpty())
            lines.append(QByteArray());
        lines << header << entry;
        return lines.join('\n') + '\n';
    }
    qsizetype insertAt = groupLine + 1;
    for (qsizetype i = groupLine + 1; i < lines.size(); ++i) {
        const QByteArray trimmed = lines.at(i).trimmed();
        if (trimmed.startsWith('['))
            break;
        if (trimmed.startsWith(QByteArray(key + '=')) || trimmed.startsWith(QByteArray(key + ' '))) {
            lines[i] = entry;
            return lines.join('\n') + '\n';
        }
        if (!trimmed.isEmpty())
            insertAt = i + 1;
    }
    lines.insert(insertAt, entry);
    return lines.join('\n') + '\n';
}

#endif

} // namespace

namespace PlatformIntegration {

QString autostartValueName()
{
    QString name = QStringLiteral("KettlebrookCalendar");
    const QString instance = AppEnvironment::instanceName();
    if (!instance.isEmpty())
        name += QLatin1Char('-') + instance;
    return name;
}

#ifdef Q_OS_WIN

bool isAutostartEnabled()
{
    QSettings run(kRunKey, QSettings::NativeFormat);
    const QVariant value = run.value(autostartValueName());
    return value.metaType().id() == QMetaType::QString && !value.toString().isEmpty();
}

void setAutostartEnabled(bool enabled)
{
    QSettings run(kRunKey, QSettings::NativeFormat);
    if (enabled)
        run.setValue(autostartValueName(),
                     QStringLiteral("\"%1\" %2").arg(programPath(), QStringLiteral("--background")));
    else
        run.remove(autostartValueName());
}

void registerIcsFileAssociation()
{
    QSettings extension(QStringLiteral("HKEY_CURRENT_USER\\Software\\Classes\\.ics"), QSettings::NativeFormat);
    extension.setValue(QStringLiteral("Default"), QStringLiteral("KettlebrookCalendar.ics"));
    extension.setValue(QStringLiteral("Content Type"), QStringLiteral("text/calendar"));

    QSettings fileClass(QStringLiteral("HKEY_CURRENT_USER\\Software\\Classes\\KettlebrookCalendar.ics"),
                        QSettings::NativeFormat);
    fileClass.setValue(QStringLiteral("Default"), QStringLiteral("Kettlebrook Calendar event file"));
    // One ordinary substitution replaces every %1, the one after the doubled percent sign too, so
    // the command reads "path" --ics "%path". Deliberate: the stored command must be exactly this.
    fileClass.setValue(QStringLiteral("shell/open/command/Default"),
                       QStringLiteral("\"%1\" --ics \"%%1\"").arg(programPath()));
}

#else

QString autostartFilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/autostart/")
        + autostartValueName() + QStringLiteral(".desktop");
}

QString desktopEntryPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::ApplicationsLocation) + QLatin1Char('/')
        + AppEnvironment::applicationId() + QStringLiteral(".desktop");
}

QString mimeAppsListPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/mimeapps.list");
}

bool isAutostartEnabled()
{
    const QList<QByteArray> lines = readFile(autostartFilePath()).split('\n');
    bool hasCommand = false;
    for (const QByteArray &line : lines) {
        const QByteArray trimmed = line.trimmed();
        if (trimmed.startsWith("Exec=") && trimmed.size() > 5)
            hasCommand = true;
        if (trimmed == "Hidden=true")
            return false;
    }
    return hasCommand;
}

void setAutostartEnabled(bool enabled)
{
    if (!enabled) {
        QFile::remove(autostartFilePath());
        return;
    }
    const QString content = QStringLiteral("[Desktop Entry]\n"
                                           "Type=Application\n"
                                           "Name=Kettlebrook Calendar\n"
                                           "Comment=Reminders and calendar sync in the background\n"
                                           "Exec=%1\n"
                                           "Icon=%2\n"
                                           "Terminal=false\n"
                                           "X-GNOME-Autostart-enabled=true\n")
                                .arg(execCommand(QStringLiteral("--background")), iconName());
    writeIfChanged(autostartFilePath(), content.toUtf8());
}

void registerIcsFileAssociation()
{
    installIcon();
    const QString entry = QStringLiteral("[Desktop Entry]\n"
                                         "Type=Application\n"
                                         "Name=Kettlebrook Calendar\n"
                                         "GenericName=Calendar\n"
                                         "Comment=Calendar and tasks, in sync with your accounts\n"
                                         "Exec=%1\n"
                                         "Icon=%2\n"
                                         "MimeType=text/calendar;\n"
                                         "Categories=Office;Calendar;\n"
                                         "Terminal=false\n"
                                         "StartupNotify=true\n")
                              .arg(execCommand(QStringLiteral("--ics %f")), iconName());
    writeIfChanged(desktopEntryPath(), entry.toUtf8());

    const QByteArray desktopFile = QFileInfo(desktopEntryPath()).fileName().toUtf8();
    const QByteArray current = readFile(mimeAppsListPath());
    writeIfChanged(mimeAppsListPath(), withKey(current, "Default Applications", "text/calendar", desktopFile + ';'));
}

#endif

} // namespace PlatformIntegration
