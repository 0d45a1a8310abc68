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
#include <vms_client_sdk/WholeFile.h>
#include <vms_client_sdk/onvif/OnvifDiscovery.h>

using namespace orda_client;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

vms_sdk::DevInfo device(const QString &id, int number)
{
    vms_sdk::DevInfo dev;
    dev.id = id;
    dev.ipNumber = 0x7f000100U + quint32(number);
    dev.ip = QHostAddress(dev.ipNumber).toString();
    dev.port = 9; // nobody listens there
    dev.accessCode = dev.kindCode = 1;
    return dev;
}

/// The client as its user starts it; what it remembers is in a file of the test.
struct Client
{
    explicit Client(const QTemporaryDir &directory)
        : settings(directory.filePath(QTest::currentTestFunction()))
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
        delete dialog;
    }
    /// What alerts say; they are answered.
    QString alerts() const
    {
        QString text;
        const auto dialogs = window.findChildren<QMessageBox *>("messageAlertDialog");
        for (QMessageBox *dialog : dialogs) {
            text += dialog->informativeText();
            delete dialog;
        }
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

    QTemporaryDir m_directory;
    QString path(const QString &file) const { return m_directory.filePath(file); }

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

    void whatIsExportedIsImported_data() { seeds(50); }

    void whatIsExportedIsImported()
    {
        QFETCH(int, seed);
        QRandomGenerator random(seed);
        const auto text = [&random] {
            QString letters = "=+-@';,|\"aÄ门 \uFF1D";
            std::shuffle(letters.begin(), letters.end(), random);
            return letters.left(random.bounded(7));
        };
        QList<vms_sdk::DevInfo> devices;
        for (int i = 1; i < 20; ++i) {
            vms_sdk::DevInfo dev = device(QString("%1c%2").arg(text().trimmed()).arg(i), i);
            dev.name = text().trimmed();
            dev.password = "secret" + text();
            dev.tls = i % 2 == 0;
            devices.append(dev);
        }
        QCOMPARE(InventoryCsv::read(InventoryCsv::text(devices, InventoryCsv::Passwords::With)).devices, devices);
        const QByteArray closed = InventoryCsv::text(devices, InventoryCsv::Passwords::Without);
        QVERIFY(!closed.contains("secret"));
        for (vms_sdk::DevInfo &dev : devices)
            dev.password.clear();
        QCOMPARE(InventoryCsv::read(closed).devices, devices);
    }

    void tableBecomesAnInventory()
    {
        const Client client(m_directory);
        const QString table = path("hall.csv"), inventory = path("imported.json");
        const auto import = [&](const QByteArray &text) {
            QCOMPARE(vms_sdk::writeWholeFile(table, text, vms_sdk::Readers::Usual), QString());
            client.choose("importDevices");
            client.giveFile(table);
        };
        import("id,ip,port\nc1,127.0.1.1,x\nc1,127.0.1.1,9\n");
        auto *faults = client.child<QDialog>("importFaultsDialog");
        QVERIFY(faults && faults->findChild<QLabel *>()->text().contains("2 error(s) in hall.csv"));
        const auto *rows = faults->findChild<QTableView *>()->model();
        QCOMPARE(rows->index(1, 3).data().toString(), QString("must not be the same as in line 2"));
        delete faults;
        import("id,ip,port,password,floor\nc1,127.0.1.1,9,secret,3\n");
        client.giveFile(inventory);
        QVERIFY(client.alerts().contains("left out: floor"));
        QVERIFY(!(QFile::permissions(inventory) & (QFile::ReadGroup | QFile::ReadOther)));
        QCOMPARE(client.session.source().inventoryFile, inventory);
        QCOMPARE(client.window.windowTitle(), QString("imported.json – Batch Configuration"));
        QCOMPARE(orda_data::DevsMgrData::instance().getDevInfoById("c1").password, QString("secret"));
    }

    void foundCamerasGoIntoTheInventory_data()
    {
        columns<QString, QString>({"what", "told"});
        row("added", "", "");
        row("two at one address", "twin", "the same address");
        row("an inventory that has one meanwhile", "late", "must not be the same as in");
        row("no inventory", "none", "");
    }

    void foundCamerasGoIntoTheInventory()
    {
        QFETCH(QString, what);
        QFETCH(QString, told);
        allowWarnings("certificate"); // what is added is dialled at once, whoever has that address here
        Client client(m_directory);
        const QString site = path("site.json");
        QByteArray content = R"({"site": "x", "devices": [{"id": "onvif-10.0.0.1", "ip": "10.0.0.9", "port": 80}]})";
        QCOMPARE(vms_sdk::writeWholeFile(site, content, vms_sdk::Readers::OwnerOnly), QString());
        if (what != "none")
            QCOMPARE(client.session.openInventory(site), QString());
        client.choose("findCameras");
        auto *search = client.window.findChild<vms_sdk::OnvifDiscovery *>();
        emit search->found({"1", "Gate\u202e<b>", {}, {}, {QUrl("http://10.0.0.1")}, "10.0.0.1"});
        emit search->found({"2", "Hall", {}, {}, {QUrl("https://10.0.0.3:8443/a%20b")}, "10.0.0.3"});
        emit search->found(
            {"3", "Known", {}, {}, {QUrl(what == "twin" ? "http://10.0.0.1:80/x" : "http://10.0.0.9")}, "10.0.0.9"});
        emit search->found({"4", "Liar", {}, {}, {QUrl("http://cam.example/")}, "10.0.0.5"});
        auto *view = client.child<QTableView>("found");
        QTRY_COMPARE(view->model()->rowCount(), 4);
        const auto cell = [view](int row, int column) { return view->model()->index(row, column).data().toString(); };
        QCOMPARE(cell(0, 0), QString("Gate\uFFFD<b>"));
        QCOMPARE(cell(3, 2), QString("says that it is at http://cam.example/"));
        client.press("tickNew"); // not the liar
        if (what == "twin") {
            view->selectAll();
            QTest::keyClick(view, Qt::Key_Space);
        }
        client.child<QLineEdit>("userName")->setText("admin");
        client.child<QLineEdit>("password")->setText(" secret");
        client.child<QLineEdit>("group")->setText("hall");
        if (what == "late")
            content.replace("}]", R"(}, {"id": "b", "protocol": "onvif", "ip": "10.0.0.1"}])");
        QCOMPARE(vms_sdk::writeWholeFile(site, content, vms_sdk::Readers::OwnerOnly), QString());
        client.press("addFound");
        if (what == "twin") {
            QVERIFY(client.child<QLabel>("notice")->text().contains(told) && !client.child("addQuestion"));
            return;
        }
        QTRY_VERIFY(client.child("confirm")->isEnabled());
        client.press("confirm");
        if (what == "none")
            client.giveFile(path("fresh.json"));
        const QString alerts = client.alerts();
        QVERIFY2(told.isEmpty() ? alerts.isEmpty() : alerts.contains(told), qPrintable(alerts));
        if (!told.isEmpty()) {
            QCOMPARE(contentOf(site), content);
            return;
        }
        const QString file = client.session.source().inventoryFile;
        const QList<vms_sdk::DevInfo> read = vms_sdk::readInventory(file).devices; // none, where others may read it
        QCOMPARE(read.size(), 3);
        const QString table = InventoryCsv::text(read, InventoryCsv::Passwords::With);
        const QString first =
            QString("onvif-10.0.0.1%1,Gate\uFFFD<b>,,onvif,10.0.0.1,80,").arg(what == "none" ? "" : "-2");
        QVERIFY2(table.contains(first + "/onvif/device_service,false,,,admin, secret,1,1,hall"), qPrintable(table));
        QVERIFY(table.contains("onvif-10.0.0.3-8443,Hall,,onvif,10.0.0.3,8443,/a%20b,true,,,admin, secret,1,1,hall"));
        QVERIFY(what == "none" || contentOf(file).contains("\"site\"")); // nobody here knows it
        QVERIFY(cell(0, 1) == "in the inventory already"
                && !view->model()->index(0, 0).data(Qt::CheckStateRole).isValid());
    }

    void devicesBecomeATable()
    {
        const Client client(m_directory);
        vms_sdk::DevInfo dev = device("c1", 1);
        dev.password = "secret";
        orda_data::DevsMgrData::instance().updateDevs({dev});
        for (const bool isWithPasswords : {false, true}) {
            client.choose("exportDevices");
            QVERIFY(!client.child<QCheckBox>("withPasswords")->isChecked());
            client.child<QCheckBox>("withPasswords")->setChecked(isWithPasswords);
            client.press("saveExport");
            const QString table = path(isWithPasswords ? "open.csv" : "closed.csv");
            client.giveFile(table);
            QVERIFY(contentOf(table).contains("\r\nc1,"));
            QCOMPARE(contentOf(table).contains("secret"), isWithPasswords);
            QVERIFY(!isWithPasswords || !(QFile::permissions(table) & (QFile::ReadGroup | QFile::ReadOther)));
            QTRY_VERIFY(!client.child("exportDialog"));
        }
    }

    void beginsWithFirstSteps()
    {
        const Client client(m_directory);
        QVERIFY(client.child("firstSteps")->isVisible() && !client.child("devsTableWt")->isVisible());
        client.child<QSpinBox>("demoDevices")->setValue(3);
        client.press("startDemoBt");
        QVERIFY(!client.child("firstSteps")->isVisible() && client.child("devsTableWt")->isVisible());
        QCOMPARE(client.window.windowTitle(), QString("Demo with 3 device(s) – Batch Configuration"));
    }

    void remembersItsInventories()
    {
        const QStringList files{path("latest & <b>.json"), path("first.json")};
        for (const QString &file : files)
            QCOMPARE(vms_sdk::writeInventory(file, {device("c1", 1)}), QString());
        {
            const Client client(m_directory);
            QCOMPARE(vms_sdk::writeWholeFile(path("wrong"), "{}", vms_sdk::Readers::Usual), QString());
            for (const QString &file : {files.last(), files.first(), path("wrong")}) {
                client.choose("openInventory");
                client.giveFile(file);
                QCOMPARE(client.alerts().contains("must be a list"), file == path("wrong"));
            }
            QCOMPARE(client.session.source().inventoryFile, files.first());
        }
        const Client client(m_directory);
        QCOMPARE(client.settings.recentInventories(), files);
        QVERIFY(QFile::remove(files.first()));
        client.press("recentInventory"); // the first of the page
        QVERIFY(client.alerts().startsWith(files.first() + " is no longer there"));
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
        {
            Client client(m_directory);
            client.press("osd_param");
            client.window.resize(700, 500);
        }
        const Client client(m_directory);
        QCOMPARE(client.child<QStackedWidget>("stackedWidget")->currentWidget()->objectName(),
                 QString("osdParamsCfgPage"));
        QCOMPARE(client.window.size(), QSize(700, 500));
    }

    void previewIsNoAnswerToOddValues_data()
    {
        columns<QString, bool>({"name", "isAsked"});
        row("as it should be", QString("Gate"), false);
        row("empty", QString(), true);
    }

    void previewIsNoAnswerToOddValues()
    {
        QFETCH(QString, name);
        QFETCH(bool, isAsked);
        Client client(m_directory);
        client.settings.setAskAbove(0);
        client.window.guardPresses();
        client.child<QSpinBox>("demoDevices")->setValue(3);
        client.press("startDemoBt");
        QTRY_VERIFY(client.child<QTableWidget>("devsTableWt")->rowCount() > 0);
        client.press("osd_param");
        client.press("selAll");
        client.child("osdParamsCfgPage")->findChild<QLineEdit *>("nameParam")->setText(name);
        client.choose("showPreview");
        const auto *preview = client.child("previewWindow");
        QTRY_VERIFY(preview->findChild<QPushButton *>("configureChanging")->isEnabled());
        const QSignalSpy begun(client.session.journal(), &orda_journal::JournalTransport::signalRunBegan);
        preview->findChild<QPushButton *>("configureChanging")->click();
        QTest::qWait(50);
        QCOMPARE(client.window.findChild<QDialog *>("pressQuestion") != nullptr, isAsked);
        QCOMPARE(begun.count(), isAsked ? 0 : 1);
    }

    void settingsAreKeptOnOk()
    {
        const Client client(m_directory);
        for (const bool isMeant : {false, true}) {
            client.choose("showSettings");
            client.child<QComboBox>("theme")->setCurrentIndex(2);
            client.child<QSpinBox>("askAbove")->setValue(0);
            client.press("halts");
            client.child<QSpinBox>("haltShare")->setValue(30);
            isMeant ? client.press("saveSettings") : dismissDialogs();
            QTRY_VERIFY(!client.child("settingsDialog"));
            QCOMPARE(client.settings.theme(), isMeant ? QString("dark") : QString());
            QCOMPARE(client.settings.askAbove(), isMeant ? 0 : 50);
            QCOMPARE(client.settings.haltShare(), isMeant ? 30 : 0);
        }
    }

    void devicesStayWhileAJobGoesOn()
    {
        const QString file = path("site.json");
        QCOMPARE(vms_sdk::writeInventory(file, {device("c1", 1)}), QString());
        const Client client(m_directory);
        QCOMPARE(client.session.journal()->beginReading(), QString());
        for (const bool isFree : {false, true}) {
            client.choose("openInventory");
            client.giveFile(file);
            QCOMPARE(client.session.source().isNone(), !isFree);
            client.press("startDemoBt");
            QCOMPARE(client.session.source().demoDevices > 0, isFree);
            client.choose("importDevices");
            QCOMPARE(bool(client.window.findChild<QFileDialog *>()), isFree);
            QCOMPARE(client.alerts().count("being read or configured"), isFree ? 0 : 3);
            client.session.journal()->end();
        }
    }

    void manualHasAllSectionsInEveryLanguage()
    {
        const QByteArray english = contentOf(":/manual/manual_en.md");
        const QStringList files = QDir(":/manual").entryList();
        for (const QString &file : files)
            for (const char *mark : {"\n## ", "\n| ", "\n- "})
                QVERIFY2(contentOf(":/manual/" + file).count(mark) == english.count(mark), qPrintable(file + mark));
        const Client client(m_directory);
        QLocale::setDefault(QLocale("de_AT"));
        client.choose("showManual");
        QLocale::setDefault(QLocale::c());
        QVERIFY(client.child<QTextBrowser>("manual")->toPlainText().contains("Erste Schritte"));
    }
};

ORDA_TEST_MAIN(AppTest)

#include "app_test.moc"
