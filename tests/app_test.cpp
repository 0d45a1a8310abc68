#include "support/OrdaTest.h"
#include "support/Store.h"

#include "client/app/ClientWindow.h"
#include "client/inventory/InventoryCsv.h"
#include "client/session/ClientSession.h"
#include "client/settings/ClientSettings.h"
#include "journal/HistoryOptions.h"
#include "journal/JournalTransport.h"

#include <QtWidgets>
#include <vms_client_sdk/Inventory.h>

using namespace orda_client;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString said(const QWidget *widget)
{
    QStringList texts;
    const auto labels = widget->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        texts.append(label->text());
    return texts.join('\n');
}

vms_sdk::DevInfo device(const QString &id, int number)
{
    vms_sdk::DevInfo dev;
    dev.id = id;
    dev.ip = QString("127.0.1.%1").arg(number);
    dev.ipNumber = QHostAddress(dev.ip).toIPv4Address();
    dev.port = 9; // nobody listens there
    dev.accessCode = dev.kindCode = 1;
    return dev;
}

/// The client as its user starts it; what it remembers is in a file of the test.
struct Client
{
    explicit Client(const QTemporaryDir &directory)
        : settings(directory.filePath("client.ini"))
    {
        window.show();
    }
    ~Client()
    {
        dismissDialogs();
        clearStore();
    }
    Q_DISABLE_COPY_MOVE(Client)

    template <typename Widget = QWidget>
    Widget *child(const char *name) const
    {
        return window.findChild<Widget *>(name);
    }
    void choose(const char *action) const { child<QAction>(action)->trigger(); }
    void press(const char *button) const { child<QAbstractButton>(button)->click(); }
    /// Types a path into the dialog that asks for a file.
    void giveFile(const QString &path) const
    {
        auto *dialog = window.findChild<QFileDialog *>();
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(path);
        static_cast<QDialog *>(dialog)->accept();
        QTRY_VERIFY(!window.findChild<QFileDialog *>() || window.findChild<QFileDialog *>() != dialog);
    }
    /// The alert that is shown, which is answered.
    QString alert() const
    {
        auto *dialog = child<QMessageBox>("messageAlertDialog");
        const QString text = dialog ? dialog->informativeText() : QString();
        delete dialog;
        return text;
    }

    ClientSettings settings;
    ClientSession session{orda_journal::HistoryOptions()};
    ClientWindow window{&session, &settings};
};

} // namespace

/// The program around the form: how it begins, what it remembers, inventories from and to tables.
class AppTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void tablesOfDevices_data()
    {
        columns<QString, QString>({"table", "expected"});
        rowsFrom("inventory_tables.txt");
    }

    void tablesOfDevices()
    {
        QFETCH(QString, expected);
        QFETCH(QString, table);
        QByteArray text = table.replace("\\n", "\n").replace("\\r", "\r").toUtf8();
        for (const char *byte : {"ef", "bb", "bf", "fc"})
            text.replace(QByteArray("\\x") + byte, QByteArray::fromHex(byte));
        const InventoryCsv::Content content = InventoryCsv::read(text);
        QStringList faults;
        for (const InventoryCsv::Fault &fault : content.faults)
            faults.append(QString("%1:%2 %3: %4").arg(fault.line).arg(fault.column).arg(fault.field, fault.what));
        if (!expected.startsWith('[')) {
            QCOMPARE(faults.join(" ;; "), expected);
            QVERIFY(content.devices.isEmpty());
            return;
        }
        QCOMPARE(faults, QStringList());
        QCOMPARE(content.unusedColumns.join(", "), expected.section("left out: ", 1));
        const QJsonArray wanted = QJsonDocument::fromJson(expected.section(" left out", 0, 0).toUtf8()).array();
        const QJsonArray read = vms_sdk::inventoryToJson(content.devices).value("devices").toArray();
        QCOMPARE(read.size(), wanted.size());
        for (int i = 0; i < wanted.size(); ++i) {
            const QJsonObject members = wanted.at(i).toObject();
            for (auto member = members.begin(); member != members.end(); ++member)
                QCOMPARE(read.at(i).toObject().value(member.key()), member.value());
        }
    }

    void whatIsExportedIsImported_data() { seeds(200); }

    void whatIsExportedIsImported()
    {
        QFETCH(int, seed);
        QRandomGenerator random(seed);
        const auto text = [&random] {
            const QString letters = "=+-@';,|\"aÄ门 \uFF1D";
            QString made;
            for (int left = random.bounded(7); left > 0; --left)
                made += letters.at(random.bounded(letters.size()));
            return made;
        };
        QList<vms_sdk::DevInfo> devices;
        for (int i = 1; i < 20; ++i) {
            vms_sdk::DevInfo dev = device(QString("%1c%2").arg(text().trimmed()).arg(i), i);
            dev.name = text().trimmed();
            dev.group = text().trimmed();
            dev.userName = text();
            dev.password = "secret" + text();
            dev.tls = random.bounded(2) == 1;
            devices.append(dev);
        }
        const QByteArray open = InventoryCsv::text(devices, InventoryCsv::Passwords::With);
        QCOMPARE(InventoryCsv::read(open).devices, devices);
        const QByteArray closed = InventoryCsv::text(devices, InventoryCsv::Passwords::Without);
        QVERIFY(!closed.contains("secret"));
        for (vms_sdk::DevInfo &dev : devices)
            dev.password.clear();
        QCOMPARE(InventoryCsv::read(closed).devices, devices);
    }

    void tableBecomesAnInventory()
    {
        const QTemporaryDir directory;
        const Client client(directory);
        const QString table = directory.filePath("hall.csv"), inventory = directory.filePath("site.json");
        const auto import = [&](const QByteArray &text) {
            QFile file(table);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(text);
            file.close();
            client.choose("importDevices");
            client.giveFile(table);
        };
        import("id,ip,port\nc1,127.0.1.1,x\nc1,127.0.1.1,9\n");
        auto *faults = client.child<QDialog>("importFaultsDialog");
        QVERIFY(faults && said(faults).contains("2 error(s) in hall.csv"));
        QCOMPARE(faults->findChild<QTableView *>()->model()->index(1, 3).data().toString(),
                 QString("must not be the same as in line 2"));
        delete faults;
        QVERIFY(!QFile::exists(inventory));

        import("id,ip,port,password,floor\nc1,127.0.1.1,9,secret,3\n");
        client.giveFile(inventory);
        QVERIFY(client.alert().contains("left out: floor"));
        QCOMPARE(QFile::permissions(inventory) & ~0x7000, QFile::ReadOwner | QFile::WriteOwner);
        QCOMPARE(client.session.source().inventoryFile, inventory);
        QCOMPARE(client.window.windowTitle(), QString("site.json – Batch Configuration"));
        QCOMPARE(orda_data::DevsMgrData::instance().getDevInfoById("c1").password, QString("secret"));
    }

    void devicesBecomeATable_data()
    {
        columns<bool>({"isWithPasswords"});
        row("without passwords", false);
        row("with passwords", true);
    }

    void devicesBecomeATable()
    {
        QFETCH(bool, isWithPasswords);
        const QTemporaryDir directory;
        const Client client(directory);
        vms_sdk::DevInfo dev = device("c1", 1);
        dev.password = "secret";
        orda_data::DevsMgrData::instance().updateDevs({dev});
        client.choose("exportDevices");
        QVERIFY(!client.child<QCheckBox>("withPasswords")->isChecked());
        client.child<QCheckBox>("withPasswords")->setChecked(isWithPasswords);
        client.press("saveExport");
        const QString table = directory.filePath("table.csv");
        client.giveFile(table);
        QVERIFY(contentOf(table).contains("\r\nc1,"));
        QCOMPARE(contentOf(table).contains("secret"), isWithPasswords);
        QVERIFY(!isWithPasswords || !(QFile::permissions(table) & (QFile::ReadGroup | QFile::ReadOther)));
    }

    void beginsWithFirstSteps()
    {
        const QTemporaryDir directory;
        const Client client(directory);
        QVERIFY(client.child("firstSteps")->isVisible() && !client.child("devsTableWt")->isVisible());
        client.child<QSpinBox>("demoDevices")->setValue(3);
        client.press("startDemoBt");
        QVERIFY(!client.child("firstSteps")->isVisible() && client.child("devsTableWt")->isVisible());
        QCOMPARE(client.window.windowTitle(), QString("Demo with 3 device(s) – Batch Configuration"));
        QTRY_VERIFY(client.child<QTableWidget>("devsTableWt")->rowCount() > 0);
    }

    /// What is shown is the inventory that was opened last and could be.
    void remembersItsInventories()
    {
        const QTemporaryDir directory;
        QStringList files;
        for (int i = 1; i < 3; ++i)
            files.prepend(directory.filePath(QString("site %1 & <b>.json").arg(i)));
        for (const QString &file : qAsConst(files))
            QCOMPARE(vms_sdk::writeInventory(file, {device("c1", 1)}), QString());
        {
            const Client client(directory);
            for (const QString &file : {files.last(), files.first(), directory.path()}) {
                client.choose("openInventory");
                client.giveFile(file);
            }
            QCOMPARE(client.session.source().inventoryFile, files.first());
            static_cast<QDialog *>(client.window.findChild<QFileDialog *>())->reject(); // no directory is a file
        }
        const Client client(directory);
        QCOMPARE(client.settings.recentInventories(), files);
        QVERIFY(QFile::remove(files.first()));
        client.press("recentInventory"); // the first of the page
        QVERIFY(client.alert().startsWith(files.first() + " is no longer there"));
        QCOMPARE(client.settings.recentInventories(), QStringList(files.last()));
        auto *menu = client.child<QMenu>("recentInventories");
        menu->popup({});
        menu->actions().constFirst()->trigger();
        QCOMPARE(client.session.source().inventoryFile, files.last());
        menu->actions().constLast()->trigger();
        menu->close();
        QCOMPARE(client.settings.recentInventories(), QStringList());
        QVERIFY(!client.child("recentInventory") || !client.child("recentInventory")->isVisible());
    }

    void remembersPageAndSize()
    {
        const QTemporaryDir directory;
        const QSize size(700, 500);
        {
            Client client(directory);
            QVERIFY(client.child("videoParametersPage") && client.settings.page().isEmpty());
            client.press("osd_param");
            client.window.resize(size);
        }
        const Client client(directory);
        QCOMPARE(client.child<QStackedWidget>("stackedWidget")->currentWidget()->objectName(),
                 QString("osdParamsCfgPage"));
        QCOMPARE(client.window.size(), size);
    }

    void settingsAreKeptOnOk()
    {
        const QTemporaryDir directory;
        const Client client(directory);
        for (const bool isMeant : {false, true}) {
            client.choose("showSettings");
            auto *dialog = client.child<QDialog>("settingsDialog");
            QVERIFY(!client.child("haltShare")->isEnabled());
            client.child<QComboBox>("theme")->setCurrentIndex(2);
            client.child<QSpinBox>("askAbove")->setValue(0);
            client.press("halts");
            client.child<QSpinBox>("haltShare")->setValue(30);
            isMeant ? client.press("saveSettings") : dialog->reject();
            QTRY_VERIFY(!client.child("settingsDialog"));
            QCOMPARE(client.settings.theme(), isMeant ? QString("dark") : QString());
            QCOMPARE(client.settings.askAbove(), isMeant ? 0 : 50);
            QCOMPARE(client.settings.haltShare(), isMeant ? 30 : 0);
        }
    }

    void devicesStayWhileAJobGoesOn()
    {
        const QTemporaryDir directory;
        const QString file = directory.filePath("site.json");
        QCOMPARE(vms_sdk::writeInventory(file, {device("c1", 1)}), QString());
        Client client(directory);
        client.settings.addRecentInventory(file);
        QCOMPARE(client.session.journal()->beginReading(), QString());
        auto *menu = client.child<QMenu>("recentInventories");
        for (const bool isFree : {false, true}) {
            menu->popup({});
            menu->actions().constFirst()->trigger();
            menu->close();
            QCOMPARE(client.session.source().isNone(), !isFree);
            QCOMPARE(client.alert().contains("being read or configured"), !isFree);
            client.press("startDemoBt"), client.choose("importDevices");
            QCOMPARE(client.session.source().demoDevices == 0, !isFree);
            QCOMPARE(bool(client.window.findChild<QFileDialog *>()), isFree);
            dismissDialogs();
            client.session.journal()->end();
        }
    }

    void manualHasAllSectionsInEveryLanguage()
    {
        const QByteArray english = contentOf(":/manual/manual_en.md");
        QVERIFY(english.count("\n## ") > 5);
        const QStringList files = QDir(":/manual").entryList();
        for (const QString &file : files) {
            const QByteArray text = contentOf(":/manual/" + file);
            for (const char *mark : {"\n## ", "\n| ", "\n- "})
                QVERIFY2(text.count(mark) == english.count(mark), qPrintable(file + ": " + mark));
        }
        const QTemporaryDir directory;
        const Client client(directory);
        QLocale::setDefault(QLocale("de_AT"));
        client.choose("showManual");
        QLocale::setDefault(QLocale::c());
        QVERIFY(client.child<QTextBrowser>("manual")->toPlainText().contains("Erste Schritte"));
    }
};

ORDA_TEST_MAIN(AppTest)

#include "app_test.moc"
