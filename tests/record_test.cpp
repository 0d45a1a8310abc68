#include "support/OrdaTest.h"
#include "support/RecordEntry.h"
#include "support/Store.h"

#include "client/form/Families.h"
#include "client/record/RecordWindow.h"
#include "client/settings/ClientSettings.h"

#include <QtWidgets>
#include <orda_base/BaseForm.h>
#include <shell/BatchCfgInit.h>
#include <vms_client_sdk/DevInfo.h>

using namespace orda_client;

namespace {

QString recordPath()
{
    return QDir::temp().filePath(findFamily("audio")->recordFile);
}

void write(const QString &text)
{
    QFile file(recordPath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text.toLocal8Bit());
}

QStringList column(const QAbstractItemModel *model, int number)
{
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts.append(model->index(row, number).data().toString());
    return texts;
}

template <typename Widget>
Widget *child(const QWidget &window, const char *name)
{
    return window.findChild<Widget *>(name);
}

/// The form over devices that are online, with the serial numbers "SN0" on, and the window of a record file.
struct Client
{
    explicit Client(const QStringList &serialNumbers = {})
    {
        auto &store = orda_data::DevsMgrData::instance();
        for (const QString &serialNumber : serialNumbers) {
            vms_sdk::DevInfo dev;
            dev.id = QString("dev%1").arg(store.devCount(false));
            dev.serialNumber = serialNumber;
            dev.ip = "10.0.0.1";
            dev.accessCode = dev.kindCode = 1;
            store.updateDevs({dev});
            store.setDevStatus(dev.id, vms_sdk::DevOnline);
        }
        form.reset(orda_batchCfg::BatchCfgInit::instance().createBatchCfgForm());
        form->show();
        window = std::make_unique<RecordWindow>(recordPath(), form.get(), &settings, nullptr);
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->show();
    }
    ~Client() { clearStore(); }
    Q_DISABLE_COPY_MOVE(Client)

    QAbstractItemModel *shown() const { return child<QTableView>(*window, "record")->model(); }
    QStringList ticked() const
    {
        const auto *list = child<QTableWidget>(*form, "devsTableWt");
        QStringList texts;
        for (int row = 0; row < list->rowCount(); ++row)
            if (list->item(row, 0)->checkState() == Qt::Checked && !list->isRowHidden(row))
                texts.append(list->item(row, 2)->text());
        texts.sort();
        return texts;
    }

    ClientSettings settings{QString()};
    std::unique_ptr<QWidget> form;
    std::unique_ptr<RecordWindow> window;
};

} // namespace

/// The window of one record file, from the file to the ticks in the form.
class RecordTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void init()
    {
        OrdaTest::init();
        QFile::remove(recordPath());
        QFile::remove(recordPath() + ".elsewhere");
    }

    void recordOfDoubtfulOriginIsNotRead_data()
    {
        columns<QString>({"command"}); // for the shell, which gets the record's path as $0
        row("symbolic link", "mv $0 $0.elsewhere && ln -s $0.elsewhere $0");
        row("not a regular file", "rm $0 && mkfifo $0");
        row("more than one name", "ln -f $0 $0.elsewhere");
        row("too large", "truncate -s 4G $0");
        row("another user", "chown 65534 $0");
        row("No such file", "rm $0");
    }

    void recordOfDoubtfulOriginIsNotRead()
    {
        QFETCH(QString, command);
        write(entry("A", "10.0.0.1", "no", "Cam"));
        const bool isDone = QProcess::execute("sh", {"-c", command, recordPath()}) == 0;
        if (!isDone && command.startsWith("chown"))
            QSKIP("only root can give a file away");
        QVERIFY(isDone);
        const Client client;
        QCOMPARE(client.shown()->rowCount(), 0);
        QVERIFY(child<QLabel>(*client.window, "recordEmpty")->text().contains(QTest::currentDataTag()));
    }

    void columnsSortAsPeopleReadThem()
    {
        write(entry("3", "10.0.0.9", "success", "cam 10") + entry("1", "", "no", "cam 3")
              + entry("2", "10.0.0.10", "success", "Cam 2") + entry("4", "gate.site", "success", "Gate"));
        const Client client;
        const auto sorted = [&](int by) {
            auto *table = child<QTableView>(*client.window, "record");
            table->setCurrentIndex(table->model()->index(0, by));
            QTest::keyClick(table, Qt::Key_Up, Qt::AltModifier); // as a click on the title
            return column(client.shown(), 2).join(' ');
        };
        QCOMPARE(column(client.shown(), 2).join(' '), "1 2 3 4"); // failures first
        QCOMPARE(sorted(1), "2 1 3 4");
        QCOMPARE(sorted(3), "3 2 4 1");
    }

    void failuresAreGroupedFoundAndExported()
    {
        write(entry("A", "10.0.0.1", "no(-1)", "=1+\"1\";=2, north") + entry("B", "10.0.0.2", "no(-1)", "B")
              + entry("C", "10.0.0.3", "never", "<b>C") + entry("D", "10.0.0.4", "success", "D"));
        const Client client;
        auto *groups = child<QTableWidget>(*client.window, "groups");
        QCOMPARE(column(groups->model(), 0), QStringList({"All devices", "no(-1)", "never"}));
        groups->selectRow(1);
        QCOMPARE(column(client.shown(), 2).join(' '), "A B");
        groups->selectRow(0);
        child<QComboBox>(*client.window, "recordChoice")->setCurrentIndex(1);
        QCOMPARE(client.shown()->rowCount(), 3);
        child<QWidget>(*client.window, "recordSearch")->findChild<QLineEdit *>()->setText("=1+");
        child<QAbstractButton>(*client.window, "exportCsv")->click();
        const QString exported = QDir::temp().filePath("failed.csv");
        emit client.window->findChild<QFileDialog *>()->fileSelected(exported);
        QFile file(exported);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(),
                 QStringLiteral("\uFEFFOutcome,Name,Serial number,IP address,Time,Message\r\n"
                                "Failed,\"'=1+\"\"1\"\";'=2, north\",A,10.0.0.1,2026-03-04 05:06:07,no(-1)\r\n")
                     .toUtf8());
    }

    void whatLeavesADoubtIsNotTickedAgain()
    {
        write(entry("SN1", "10.0.0.1", "no", "cam") + entry("SN2", "10.0.0.1", "no", "cam")
              + entry("gone", "10.0.0.1", "no", "stranger") + entry("", "10.0.0.1", "no", "nameless")
              + entry("SN3", "10.0.0.1", "no", "twin") + entry("SN3", "10.0.0.1", "success", "twin")
              + entry("SN4", "10.0.0.1", "no", "cam") + entry("SN5", "10.0.0.1", "success", "cam") + "2026-");
        const Client client({"SN1", "SN2", "SN3", "SN4", "SN4", "SN5"});
        child<QWidget>(*client.form, "searchBox")->findChild<QLineEdit *>()->setText("SN5");
        child<QAbstractButton>(*client.window, "tickFailedAgain")->click();
        QCOMPARE(client.ticked(), QStringList({"SN1", "SN2"}));
        QVERIFY(child<QLabel>(*client.window, "tickReport")->text().startsWith("Ticked 2 of 7"));
        const QStringList left = child<QPlainTextEdit>(*client.window, "tickReportList")->toPlainText().split('\n');
        for (const char *why :
             {"stranger (gone): it is not in the list", "nameless: it has no serial number",
              "several devices of the run", "several devices in the list", "2026-: its entry in the record cannot"})
            QVERIFY2(left.filter(why).size() == 1, why);
        QCOMPARE(left.size(), 5);
        QCOMPARE(child<QWidget>(*client.form, "audioParametersPage")->isVisible(), true);
    }
};

ORDA_TEST_MAIN(RecordTest)
#include "record_test.moc"
