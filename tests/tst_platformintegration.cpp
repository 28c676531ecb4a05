// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/PlatformIntegration.h"
#include "app/Translations.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace {

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeAll(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
}

QByteArray execLine(const QByteArray &content)
{
    for (const QByteArray &line : content.split('\n')) {
        if (line.startsWith("Exec="))
            return line.mid(5);
    }
    return QByteArray();
}

} // namespace

class TestPlatformIntegration : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void autostartEntry();
    void autostartNameCarriesTheInstance();
    void icsAssociationIsWrittenOnceAndKeepsOtherEntries();
    void icsAssociationAddsTheGroupWhenMissing();
    void resolvedLanguage_data();
    void resolvedLanguage();
    void languageIsKeptInTheNativeSettings();

private:
    std::unique_ptr<QTemporaryDir> m_home;
};

void TestPlatformIntegration::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", m_home->filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_DATA_HOME", m_home->filePath(QStringLiteral("data")).toUtf8());
    qunsetenv("CALENDAR_INSTANCE");
}

void TestPlatformIntegration::autostartEntry()
{
    QVERIFY(!PlatformIntegration::isAutostartEnabled());
    PlatformIntegration::setAutostartEnabled(true);
    const QString path = PlatformIntegration::autostartFilePath();
    QCOMPARE(path, m_home->filePath(QStringLiteral("config/autostart/KettlebrookCalendar.desktop")));
    QVERIFY(PlatformIntegration::isAutostartEnabled());
    const QByteArray content = readAll(path);
    QVERIFY(content.startsWith("[Desktop Entry]\n"));
    const QByteArray exec = execLine(content);
    QVERIFY2(exec.endsWith(" --background"), exec.constData());
    QVERIFY(exec.contains(QFileInfo(QCoreApplication::applicationFilePath()).fileName().toUtf8()));

    PlatformIntegration::setAutostartEnabled(false);
    QVERIFY(!QFile::exists(path));
    QVERIFY(!PlatformIntegration::isAutostartEnabled());

    // An entry the desktop has switched off does not count as enabled.
    writeAll(path, "[Desktop Entry]\nExec=x --background\nHidden=true\n");
    QVERIFY(!PlatformIntegration::isAutostartEnabled());
}

void TestPlatformIntegration::autostartNameCarriesTheInstance()
{
    QCOMPARE(PlatformIntegration::autostartValueName(), QStringLiteral("KettlebrookCalendar"));
    qputenv("CALENDAR_INSTANCE", "dev");
    QCOMPARE(PlatformIntegration::autostartValueName(), QStringLiteral("KettlebrookCalendar-dev"));
    PlatformIntegration::setAutostartEnabled(true);
    const QByteArray exec = execLine(readAll(PlatformIntegration::autostartFilePath()));
    QVERIFY2(exec.startsWith("env CALENDAR_INSTANCE=\"dev\" "), exec.constData());
    QVERIFY(exec.endsWith(" --background"));
    qunsetenv("CALENDAR_INSTANCE");
}

void TestPlatformIntegration::icsAssociationIsWrittenOnceAndKeepsOtherEntries()
{
    const QString mimeApps = PlatformIntegration::mimeAppsListPath();
    const QByteArray before = "[Default Applications]\n"
                              "text/html=firefox.desktop;\n"
                              "text/calendar=othercalendar.desktop;\n"
                              "\n"
                              "[Added Associations]\n"
                              "image/png=viewer.desktop;\n";
    writeAll(mimeApps, before);

    PlatformIntegration::registerIcsFileAssociation();
    const QString desktopFile = QFileInfo(PlatformIntegration::desktopEntryPath()).fileName();
    QVERIFY(desktopFile.endsWith(QStringLiteral(".desktop")));
    QCOMPARE(readAll(mimeApps),
             QByteArray("[Default Applications]\n"
                        "text/html=firefox.desktop;\n"
                        "text/calendar=")
                 + desktopFile.toUtf8()
                 + ";\n"
                   "\n"
                   "[Added Associations]\n"
                   "image/png=viewer.desktop;\n");

    const QByteArray entry = readAll(PlatformIntegration::desktopEntryPath());
    QVERIFY(entry.contains("\nMimeType=text/calendar;\n"));
    QVERIFY(execLine(entry).endsWith(" --ics %f"));

    // A second start rewrites nothing.
    const QDateTime stamp = QFileInfo(mimeApps).lastModified();
    const QDateTime entryStamp = QFileInfo(PlatformIntegration::desktopEntryPath()).lastModified();
    QTest::qWait(1100);
    PlatformIntegration::registerIcsFileAssociation();
    QCOMPARE(QFileInfo(mimeApps).lastModified(), stamp);
    QCOMPARE(QFileInfo(PlatformIntegration::desktopEntryPath()).lastModified(), entryStamp);
}

void TestPlatformIntegration::icsAssociationAddsTheGroupWhenMissing()
{
    const QString mimeApps = PlatformIntegration::mimeAppsListPath();
    writeAll(mimeApps, "[Added Associations]\nimage/png=viewer.desktop;\n");
    PlatformIntegration::registerIcsFileAssociation();
    const QByteArray content = readAll(mimeApps);
    QVERIFY(content.startsWith("[Added Associations]\nimage/png=viewer.desktop;\n\n[Default Applications]\n"));
    QVERIFY(content.endsWith(".desktop;\n"));

    QFile::remove(mimeApps);
    PlatformIntegration::registerIcsFileAssociation();
    QVERIFY(readAll(mimeApps).startsWith("[Default Applications]\ntext/calendar="));
}

void TestPlatformIntegration::resolvedLanguage_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("systemLocale");
    QTest::addColumn<bool>("resolveSystem");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *stored, const char *locale, bool resolve, const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(stored) << QString::fromLatin1(locale) << resolve
                            << QString::fromLatin1(expected);
    };
    row("system, German in Austria", "system", "de_AT", true, "de");
    row("system, unsupported", "system", "pt_BR", true, "en");
    row("system, C locale", "system", "C", true, "en");
    row("system unresolved", "system", "de_DE", false, "system");
    row("explicit choice", "fr", "de_DE", true, "fr");
    row("stored value is not validated", "xx", "de_DE", true, "xx");
}

void TestPlatformIntegration::resolvedLanguage()
{
    QFETCH(QString, stored);
    QFETCH(QString, systemLocale);
    QFETCH(bool, resolveSystem);
    QFETCH(QString, expected);
    QCOMPARE(Translations::resolveLanguage(stored, systemLocale, resolveSystem), expected);
}

void TestPlatformIntegration::languageIsKeptInTheNativeSettings()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Kettlebrook"));
    QCoreApplication::setApplicationName(QStringLiteral("Calendar"));
    QSettings().remove(QStringLiteral("ui/language"));
    QCOMPARE(Translations::resolvedLanguage(false), QStringLiteral("system"));
    Translations::setLanguage(QStringLiteral("es"));
    QCOMPARE(Translations::resolvedLanguage(true), QStringLiteral("es"));
    QVERIFY(QFile::exists(m_home->filePath(QStringLiteral("config/Kettlebrook/Calendar.conf"))));
}

QTEST_GUILESS_MAIN(TestPlatformIntegration)
#include "tst_platformintegration.moc"
