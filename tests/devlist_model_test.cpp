#include "support/FormFixture.h"
#include "support/OrdaTest.h"

#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>
#include <orda_saas/LoginSignals.h>
#include <orda_saas/SaasWorker.h>

#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>
#include <utility>

using orda_data::DataSignals;
using orda_data::DevsMgrData;
using orda_saas::LoginSignals;
using orda_saas::SaasWorker;
using vms_sdk::DevInfo;

namespace {

constexpr int devIdRole = Qt::UserRole + 1;
constexpr int maxDevices = 80;

struct Row
{
    QString id, name, serial, ip;
    bool isTicked = false;
    bool isHidden = false;
};

DevsMgrData &store()
{
    return DevsMgrData::instance();
}

/// What the list is to show, worked out the long way.
struct ListModel
{
    QVector<Row> rows;
    QSet<QString> freelyOperable;
    QString keyword;

    bool isEligible(const QString &id) const
    {
        const DevInfo dev = store().getDevInfoById(id);
        const int status = store().getDevStatus(id);
        if (dev.accessCode != 1 || !QList<int>{1, 6}.contains(dev.kindCode) || !QList<int>{1, 5, 6}.contains(status))
            return false;
        return freelyOperable.contains(dev.serialNumber) || !dev.ip.isEmpty()
            || (status == 1 && dev.password == "sommer31");
    }

    Row *find(const QString &id)
    {
        const auto it = std::find_if(rows.begin(), rows.end(), [&](const Row &row) { return row.id == id; });
        return it == rows.end() ? nullptr : &*it;
    }

    void search()
    {
        for (Row &row : rows)
            row.isHidden = !row.name.contains(keyword, Qt::CaseInsensitive)
                        && !row.serial.contains(keyword, Qt::CaseInsensitive)
                        && !row.ip.contains(keyword, Qt::CaseInsensitive);
    }

    void addEligible(const QString &id)
    {
        if (!isEligible(id) || find(id))
            return;
        const DevInfo dev = store().getDevInfoById(id);
        rows.push_back({id, dev.name.isEmpty() ? dev.serialNumber : dev.name, dev.serialNumber, dev.ip});
        search();
    }

    template <class Condition>
    void removeIf(Condition condition)
    {
        rows.erase(std::remove_if(rows.begin(), rows.end(), condition), rows.end());
    }

    static std::pair<QString, int> sortKey(const Row &row, int column)
    {
        if (column == 1) { // "Cam 2" before "cam 10"
            const int digits = row.name.indexOf(QRegularExpression("[0-9]"));
            return {row.name.left(digits).toLower(), digits < 0 ? -1 : row.name.midRef(digits).toInt()};
        }
        if (column == 2)
            return {row.serial, 0};
        QString ip;
        const QStringList bytes = row.ip.split('.');
        for (const QString &byte : bytes)
            ip += byte.rightJustified(3, '0');
        return {row.ip.isEmpty() ? "none: last" : ip, 0};
    }

    void sort(int column)
    {
        std::stable_sort(rows.begin(), rows.end(),
                         [column](const Row &a, const Row &b) { return sortKey(a, column) < sortKey(b, column); });
    }

    Qt::CheckState allState() const
    {
        const auto visible = std::count_if(rows.begin(), rows.end(), [](const Row &row) { return !row.isHidden; });
        const int checked = checkedIds().size();
        return checked == 0 ? Qt::Unchecked : checked == visible ? Qt::Checked : Qt::PartiallyChecked;
    }

    QStringList checkedIds() const
    {
        QStringList ids;
        for (const Row &row : rows)
            if (row.isTicked && !row.isHidden)
                ids.append(row.id);
        return ids;
    }
};

/// Lays out, draws, and lets what was put off to the next turn happen.
void settle()
{
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
}

/// The form and its model, to which the same happens.
class Twins
{
public:
    Twins(int devices, quint32 seed)
        : f(devices, silent)
        , random(seed)
        , table(f.table())
    {
        for (int i = 0; i < devices; ++i)
            model.addEligible(FormFixture::device(i).id);
    }
    ~Twins() { SaasWorker::instance().setFreelyOperable({}); }
    Q_DISABLE_COPY_MOVE(Twins)

    /// Something at random; its name.
    const char *act()
    {
        const std::tuple<int, const char *, void (Twins::*)()> actions[]{
            {8, "status", &Twins::changeStatus},  {1, "site", &Twins::changeSite},
            {2, "update", &Twins::changeDevice},  {1, "delete", &Twins::deleteDevices},
            {3, "search", &Twins::search},        {2, "sort", &Twins::sort},
            {3, "tick", &Twins::tickRow},         {2, "all", &Twins::tickAll},
            {1, "log out", &Twins::logOut},       {1, "enterprise", &Twins::changeEnterprise},
            {1, "nothing", &Twins::signalNothing}};
        int left = below(25);
        for (const auto &[share, name, action] : actions)
            if ((left -= share) < 0)
                return (this->*action)(), name;
        return nullptr;
    }

    /// Empty when there is none.
    QString difference(bool isSettled) const
    {
        const QHeaderView *header = table->verticalHeader();
        const int count = model.rows.size();
        if (table->rowCount() != count || header->count() != count)
            return QStringLiteral("%1 rows and %2 sections, not %3")
                .arg(table->rowCount())
                .arg(header->count())
                .arg(count);
        const int height = header->defaultSectionSize();
        int number = 0;
        for (int row = 0; row < count; ++row) {
            const Row &expected = model.rows[row];
            const auto item = [=](int column) { return table->item(row, column); };
            const QString at = QStringLiteral("row %1, %2: ").arg(row).arg(expected.id);
            if (item(0)->data(devIdRole) != expected.id)
                return at + item(0)->data(devIdRole).toString();
            if (item(1)->text() != expected.name || item(2)->text() != expected.serial || item(3)->text() != expected.ip
                || item(1)->toolTip() != expected.name || !item(3)->toolTip().isEmpty())
                return at + QStringLiteral("texts %1, %2, %3").arg(item(1)->text(), item(2)->text(), item(3)->text());
            if (table->isRowHidden(row) != expected.isHidden)
                return at + "hidden";
            if ((item(0)->checkState() == Qt::Checked) != expected.isTicked)
                return at + "ticked";
            if (header->sectionPosition(row) != number * height
                || table->rowHeight(row) != (expected.isHidden ? 0 : height))
                return at
                     + QStringLiteral("%1 high at %2").arg(table->rowHeight(row)).arg(header->sectionPosition(row));
            if (!expected.isHidden && item(0)->text() != QString::number(++number))
                return at + "number " + item(0)->text();
        }
        if (header->length() != number * height)
            return QStringLiteral("%1 long").arg(header->length());
        if (f.form->checkedDevIds() != model.checkedIds())
            return "checked: " + f.form->checkedDevIds().join(' ');
        if (isSettled && f.box("selAll")->checkState() != model.allState())
            return QStringLiteral("\"All\" is %1, not %2").arg(f.box("selAll")->checkState()).arg(model.allState());
        if (isSettled
            && table->verticalScrollBar()->maximum() != qMax(0, number * height - table->viewport()->height()))
            return QStringLiteral("scrolls to %1").arg(table->verticalScrollBar()->maximum());
        return {};
    }
    int below(int bound) { return int(random.bounded(quint32(bound))); }

private:
    QString someId() { return QStringLiteral("dev%1").arg(below(maxDevices)); } // known to the store or not

    DevInfo someDevice()
    {
        const auto some = [this](const QStringList &texts) { return texts.at(below(texts.size())); };
        DevInfo dev = FormFixture::device(below(maxDevices));
        const QString number = QString::number(below(40));
        dev.name = some({dev.name, dev.name, "CAM " + number, "Dome " + number, QString()});
        dev.serialNumber = some({dev.serialNumber, dev.serialNumber, "X" + number});
        dev.ip = some({dev.ip, dev.ip, "9.1.200." + number, QString()});
        dev.password = some({QString(), "12345678", "sommer31"});
        dev.kindCode = below(12) == 0 ? 2 : below(2) * 5 + 1;
        dev.accessCode = below(12) == 0 ? 2 : 1;
        return dev;
    }

    void update(const DevInfo &dev, bool isHeard)
    {
        const QSignalBlocker quiet(isHeard ? nullptr : &DataSignals::instance());
        store().updateDevs({dev});
        if (Row *row = model.find(dev.id); row && isHeard)
            *row = {dev.id, dev.name, dev.serialNumber, dev.ip, row->isTicked, row->isHidden};
        model.search();
    }

    void setStatus(const QString &id, int status, bool isHeard)
    {
        const QSignalBlocker quiet(isHeard ? nullptr : &DataSignals::instance());
        const bool changes = store().getDevStatus(id) != status;
        store().setDevStatus(id, vms_sdk::DevStatus(status));
        if (!changes || !isHeard)
            return;
        model.addEligible(id);
        if (!model.isEligible(id))
            model.removeIf([&](const Row &row) { return row.id == id; });
    }

    void changeStatus()
    {
        constexpr int states[]{0, 1, 1, 1, 2, 3, 5, 6};
        setStatus(someId(), states[below(8)], true);
    }

    void changeSite()
    {
        const int status = below(4) == 0 ? vms_sdk::DevOffline : vms_sdk::DevOnline;
        for (int i = 0; i < maxDevices; ++i)
            setStatus(someId(), status, true);
    }

    void deleteDevices()
    {
        const QStringList ids{someId(), someId(), someId()};
        store().deleteDevs(ids);
        model.removeIf([&](const Row &row) { return ids.contains(row.id); });
    }

    void search()
    {
        constexpr const char *keywords[]{"", "", "cam 1", "SN2", "0.0.1", "dome", "2", "nowhere"};
        model.keyword = QLatin1String(keywords[below(8)]);
        f.searchEdit()->setText(model.keyword);
        model.search();
    }

    void sort()
    {
        constexpr const char *headers[]{"orderNumWt", "devName", "devSn", "devIp"};
        const int column = below(4);
        QTest::mouseClick(f.page(headers[column]), Qt::LeftButton);
        if (column > 0)
            model.sort(column);
    }

    void tickRow()
    {
        settle();
        const int row = below(maxDevices);
        if (row >= model.rows.size() || model.rows[row].isHidden)
            return;
        table->scrollToItem(table->item(row, 0));
        const QRect cell = table->visualItemRect(table->item(row, 0));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, {cell.left() + 10, cell.center().y()});
        model.rows[row].isTicked ^= true;
    }

    void tickAll()
    {
        settle(); // a click means the state that the box shows
        const bool isTicked = model.allState() != Qt::Checked;
        f.tickAll();
        for (Row &row : model.rows)
            row.isTicked = row.isHidden ? row.isTicked : isTicked;
    }

    void logOut()
    {
        model.freelyOperable.clear();
        SaasWorker::instance().setFreelyOperable({});
        emit LoginSignals::instance().signalSaasLogoutSuccess();
        model.removeIf([this](const Row &row) { return !model.isEligible(row.id); });
    }

    void changeEnterprise()
    {
        for (int i = 0; i < 4; ++i) {
            update(someDevice(), false);
            setStatus(someId(), below(2), false);
            model.freelyOperable.insert(someDevice().serialNumber);
        }
        SaasWorker::instance().setFreelyOperable(model.freelyOperable);
        emit LoginSignals::instance().signalEnterpriseStatus(below(3));
        const QList<DevInfo> all = store().getAllDevs(false);
        for (const DevInfo &dev : all)
            model.addEligible(dev.id);
    }

    void signalNothing()
    {
        emit DataSignals::instance().signalUpdateDevs({someDevice()}, false, true);
        emit DataSignals::instance().signalDeleteDevs({someId()}, false);
    }

    void changeDevice() { update(someDevice(), true); }

    FormFixture f;
    ListModel model;
    QRandomGenerator random;
    QTableWidget *table;
};

} // namespace

/// The form's list of devices beside a plain model of it.
class DevlistModelTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void followsWhateverHappens_data() { seeds(qMax(40, qEnvironmentVariableIntValue("ORDA_LIST_SEEDS"))); }

    void followsWhateverHappens()
    {
        QFETCH(int, seed);
        Twins twins(seed % maxDevices, quint32(seed));
        QCOMPARE(twins.difference(false), QString());
        QStringList history;
        for (int step = 0; step < 150; ++step) {
            for (int burst = twins.below(4); burst >= 0; --burst)
                history.append(QLatin1String(twins.act()));
            const bool isSettled = twins.below(2) == 0;
            if (isSettled)
                settle();
            const QString difference = twins.difference(isSettled);
            const QString last = QStringList(history.mid(history.size() - 8)).join(", ");
            QVERIFY2(
                difference.isEmpty(),
                qPrintable(QStringLiteral("seed %1, step %2: %3; last: %4").arg(seed).arg(step).arg(difference, last)));
        }
    }
};

ORDA_TEST_MAIN(DevlistModelTest)
#include "devlist_model_test.moc"
