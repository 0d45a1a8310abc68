#include "support/OrdaTest.h"
#include "support/Store.h"

#include "client/app/ClientWindow.h"
#include "client/find/FoundModel.h"
#include "client/session/ClientSession.h"
#include "client/settings/ClientSettings.h"

#include <QtWidgets>
#include <vms_client_sdk/Inventory.h>
#include <vms_client_sdk/WholeFile.h>
#include <vms_client_sdk/onvif/OnvifDiscovery.h>

using namespace orda_client;
using namespace vms_sdk;

namespace {

FoundCamera camera(const QString &sender, const QString &address, const QString &name = {})
{
    FoundCamera found;
    found.endpoint = "urn:uuid:" + sender + address;
    found.sender = sender;
    found.addresses = {QUrl(address)};
    found.name = name;
    return found;
}

/// The client with the window over what answers.
struct Finder
{
    Finder()
    {
        window.show();
        if (!writeWholeFile(site, content, Readers::OwnerOnly).isEmpty())
            qFatal("no inventory");
    }
    ~Finder()
    {
        dismissDialogs();
        clearStore();
    }
    Q_DISABLE_COPY_MOVE(Finder)

    template <typename T = QWidget>
    T *child(const char *name) const
    {
        return window.findChild<T *>(name);
    }
    QAbstractItemModel *table() const { return child<QTableView>("found")->model(); }
    QString cell(int row, int column) const { return table()->index(row, column).data().toString(); }
    QVariant tick(int row) const { return table()->index(row, 0).data(Qt::CheckStateRole); }

    void open(const QList<FoundCamera> &answers) const
    {
        child<QAction>("findCameras")->trigger();
        for (const FoundCamera &answer : answers)
            emit window.findChild<OnvifDiscovery *>()->found(answer);
        QTRY_COMPARE(table()->rowCount(), answers.size());
    }
    void press(const char *button) const { QTest::mouseClick(child<QAbstractButton>(button), Qt::LeftButton); }
    /// @return what it asks
    QString confirm() const
    {
        auto *box = child<QMessageBox>("addQuestion");
        const QString text = box->text() + '\n' + box->informativeText();
        if (QTest::qWaitFor([&] { return child<QAbstractButton>("confirm")->isEnabled(); }))
            press("confirm");
        delete box;
        return text;
    }
    QString alert() const
    {
        const auto *box = child<QMessageBox>("messageAlertDialog");
        return box ? box->informativeText() : QString();
    }

    const QByteArray content = R"({"site": "north", "devices": [{"id": "onvif-10.0.0.1", "ip": "10.0.0.9", "port": 80,
        "floor": 3}, {"id": "relay", "url": "ws://gate.example:81/1"}]})";
    QTemporaryDir place;
    QString site = place.filePath("site.json");
    ClientSettings settings{{}};
    ClientSession session{orda_journal::HistoryOptions()};
    ClientWindow window{&session, &settings};
};

} // namespace

/// What answers a search goes into the inventory as its user ticks it.
class FindTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void tickedOnesAreAdded()
    {
        const Finder finder;
        OrdaTest::allowWarnings(".*");
        QCOMPARE(const_cast<ClientSession &>(finder.session).openInventory(finder.site), QString());
        finder.open({camera("10.0.0.1", "http://10.0.0.1", "Gate\u202e\n<b>"),
                     camera("10.0.0.9", "http://10.0.0.9:80/x"),
                     camera("10.0.0.3", "https://10.0.0.3:8443/onvif/a%20b"), camera("10.0.0.4", "http://cam.example/"),
                     camera("10.0.0.5", "http://10.9.9.9/"), camera("10.0.0.6", "http://gate.example:81/onvif")});
        QCOMPARE(finder.cell(0, 0), QString("Gate\uFFFD\u21B5<b>"));
        QCOMPARE(finder.cell(4, FoundModel::Address), QString("says that it is at http://10.9.9.9/"));
        for (const int known : {1, 5}) {
            QCOMPARE(finder.cell(known, FoundModel::State), QString("in the inventory already"));
            QVERIFY(!finder.tick(known).isValid());
        }
        QVERIFY(!finder.child("addFound")->isEnabled() && finder.child("certificates")->isVisible());
        finder.press("tickNew");
        QCOMPARE(finder.tick(4), QVariant(Qt::Unchecked)); // it may be anybody's address
        auto *table = finder.child<QTableView>("found");
        table->selectAll();
        QTest::keyClick(table, Qt::Key_Space);
        finder.child<QLineEdit>("userName")->setText("admin");
        finder.child<QLineEdit>("password")->setText(" secret");
        finder.child<QLineEdit>("group")->setText("hall");
        finder.press("addFound");
        QCOMPARE(readInventory(finder.site).devices.size(), 2);
        const QString asked = finder.confirm();
        QVERIFY2(asked.startsWith("Add 4 camera(s)") && asked.contains("10.0.0.5 answered and says that it is at"),
                 qPrintable(asked));

        QVERIFY2(finder.alert().isEmpty(), qPrintable(finder.alert()));
        const Inventory read = readInventory(finder.site);
        QCOMPARE(read.error, QString());
        const QStringList expected{"onvif-10.0.0.1-2 10.0.0.1:80 /onvif/device_service 0 ",
                                   "onvif-10.0.0.3-8443 10.0.0.3:8443 /onvif/a%20b 1 ",
                                   "onvif-cam.example :0 / 0 http://cam.example/", "onvif-10.9.9.9 10.9.9.9:80 / 0 "};
        for (int i = 0; i < expected.size(); ++i) {
            const DevInfo dev = read.devices.value(i + 2);
            QCOMPARE(QString("%1 %2:%3 %4 %5 %6")
                         .arg(dev.id, dev.ip, QString::number(dev.port), dev.path, QString::number(dev.tls), dev.url),
                     expected.at(i));
            QCOMPARE(QStringList({dev.userName, dev.password, dev.group}), QStringList({"admin", " secret", "hall"}));
            QCOMPARE(int(dev.protocol), int(DevProtocol::Onvif));
        }
        QVERIFY(!(QFile::permissions(finder.site) & (QFile::ReadGroup | QFile::ReadOther)));
        QFile file(finder.site);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QVERIFY2(text.contains("\"floor\"") && text.contains("\"north\""), text); // nobody here knows them
        QVERIFY(!finder.tick(0).isValid() && finder.cell(0, FoundModel::State) == "in the inventory already");
    }

    void whatCannotBeAddedIsTold_data()
    {
        columns<QString, QStringList, QString>({"what", "addresses", "told"});
        row("the same address", "", QStringList{"http://10.0.0.1/a", "http://10.0.0.1/b"}, "the same address");
        row("a group that cannot be seen", "group", QStringList{"http://10.0.0.1"}, "\"group\" must not hold");
        row("an inventory that has it meanwhile", "late", QStringList{"http://10.0.0.8"}, "must not be the same as in");
        row("an inventory that is gone", "gone", QStringList{"http://10.0.0.1"}, "No such file");
    }

    void whatCannotBeAddedIsTold()
    {
        QFETCH(QString, what);
        QFETCH(QStringList, addresses);
        QFETCH(QString, told);
        const Finder finder;
        OrdaTest::allowWarnings(".*");
        QCOMPARE(const_cast<ClientSession &>(finder.session).openInventory(finder.site), QString());
        QList<FoundCamera> answers;
        for (const QString &address : qAsConst(addresses))
            answers.append(camera(QUrl(address).host(), address, "Gate"));
        finder.open(answers);
        finder.press("tickNew");
        finder.child<QLineEdit>("group")->setText(what == "group" ? "a\u200bb" : "");
        QByteArray before = finder.content;
        if (what == "late")
            before.replace("10.0.0.9\", \"port\": 80", "10.0.0.8\", \"protocol\": \"onvif\", \"port\": 80");
        QCOMPARE(writeWholeFile(finder.site, before, Readers::OwnerOnly), QString());
        if (what == "gone")
            QVERIFY(QFile::remove(finder.site));
        finder.press("addFound");
        if (addresses.size() > 1) {
            QVERIFY(finder.child<QLabel>("notice")->text().contains(told) && !finder.child("addQuestion"));
            return;
        }
        finder.confirm();
        QVERIFY2(finder.alert().contains(told), qPrintable(finder.alert()));
        QFile file(finder.site);
        QCOMPARE(file.open(QIODevice::ReadOnly), what != "gone");
        QCOMPARE(file.readAll(), what == "gone" ? QByteArray() : before);
    }

    void asksForAnInventoryWhereThereIsNone()
    {
        const Finder finder;
        finder.press("findCamerasBt"); // of the first steps
        finder.open({camera("10.0.0.1", "http://10.0.0.1/", "Gate"), camera("10.0.0.2", "http://10.0.0.2/", "Hall")});
        finder.press("tickNew");
        finder.child("foundSearch")->findChild<QLineEdit *>()->setText("hall");
        QVERIFY(finder.child<QLabel>("counts")->text().contains("1 ticked but hidden"));
        finder.press("addFound");
        finder.confirm();
        const QString fresh = finder.place.filePath("fresh.json");
        auto *dialog = finder.window.findChild<QFileDialog *>();
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(fresh);
        static_cast<QDialog *>(dialog)->accept();
        QCOMPARE(readInventory(fresh).devices.value(0).name, QString("Hall"));
        QCOMPARE(readInventory(fresh).devices.size(), 1);
        QCOMPARE(finder.session.source().inventoryFile, fresh);
    }
};

ORDA_TEST_MAIN(FindTest)
#include "find_test.moc"
