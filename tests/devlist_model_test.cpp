#include "support/FormFixture.h"
#include "support/OrdaTest.h"

#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>
#include <orda_saas/LoginSignals.h>
#include <orda_saas/SaasWorker.h>

#include <QApplication>
#include <QHeaderView>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSet>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>
#include <vector>

using orda_data::DataSignals;
using orda_data::DevsMgrData;
using orda_saas::LoginSignals;
using orda_saas::SaasWorker;
using vms_sdk::DevInfo;

namespace {

constexpr int devIdRole = Qt::UserRole + 1;
constexpr int maxDevices = 80;

struct Device
{
    QString id;
    DevInfo info;
    int status = 0;
};

struct Row
{
    QString id, name, serial, ip;
    bool isTicked = false;
    bool isHidden = false;
};

template <class T>
T *find(std::vector<T> &list, const QString &id)
{
    const auto it = std::find_if(list.begin(), list.end(), [&](const T &each) { return each.id == id; });
    return it == list.end() ? nullptr : &*it;
}

template <class T, class Condition>
void removeIf(std::vector<T> &list, Condition condition)
{
    list.erase(std::remove_if(list.begin(), list.end(), condition), list.end());
}

/// What the list is to show, worked out the long way.
struct ListModel
{
    std::vector<Device> store;
    std::vector<Row> rows;
    QSet<QString> freelyOperable;
    QString keyword;

    bool isEligible(const QString &id)
    {
        const Device *dev = find(store, id);
        if (!dev || dev->info.accessCode != 1 || (dev->info.kindCode != 1 && dev->info.kindCode != 6)
            || (dev->status != 1 && dev->status != 5 && dev->status != 6))
            return false;
        return freelyOperable.contains(dev->info.serialNumber) || !dev->info.ip.isEmpty()
            || (dev->status == 1 && dev->info.password == QLatin1String("sommer31"));
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
        if (!isEligible(id) || find(rows, id))
            return;
        const DevInfo &dev = find(store, id)->info;
        rows.push_back({id, dev.name.isEmpty() ? dev.serialNumber : dev.name, dev.serialNumber, dev.ip});
        search();
    }

    void removeIneligible()
    {
        removeIf(rows, [this](const Row &row) { return !isEligible(row.id); });
    }

    static std::pair<QString, int> sortKey(const Row &row, int column)
    {
        if (column == 1) { // "Cam 2" before "cam 10"
            const int digits = row.name.indexOf(QRegularExpression(QStringLiteral("[0-9]")));
            return {row.name.left(digits).toLower(), digits < 0 ? -1 : row.name.midRef(digits).toInt()};
        }
        if (column == 2)
            return {row.serial, 0};
        QString ip;
        const QStringList bytes = row.ip.split(QLatin1Char('.'));
        for (const QString &byte : bytes)
            ip += byte.rightJustified(3, QLatin1Char('0'));
        return {row.ip.isEmpty() ? QStringLiteral("none: last") : ip, 0};
    }

    void sort(int column)
    {
        std::stable_sort(rows.begin(), rows.end(),
                         [column](const Row &a, const Row &b) { return sortKey(a, column) < sortKey(b, column); });
    }

    Qt::CheckState allState() const
    {
        int visible = 0;
        for (const Row &row : rows)
            visible += row.isHidden ? 0 : 1;
        if (checkedIds().isEmpty())
            return Qt::Unchecked;
        return checkedIds().size() == visible ? Qt::Checked : Qt::PartiallyChecked;
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
        for (int i = 0; i < devices; ++i) {
            const DevInfo dev = FormFixture::device(i);
            model.store.push_back({dev.id, dev, vms_sdk::DevOnline});
            model.addEligible(dev.id);
        }
    }
    ~Twins() { SaasWorker::instance().setFreelyOperable({}); }
    Q_DISABLE_COPY_MOVE(Twins)

    const char *act(); ///< something at random; its name
    QString difference(bool isSettled) const; ///< empty when there is none
    int below(int bound) { return int(random.bounded(quint32(bound))); }

private:
    QString someId() { return QStringLiteral("dev%1").arg(below(maxDevices)); } // known to the store or not
    DevInfo someDevice();
    void update(const DevInfo &dev, bool isHeard);
    void setStatus(const QString &id, int status, bool isHeard);

    void changeStatus();
    void changeSite();
    void changeDevice() { update(someDevice(), true); }
    void deleteDevices();
    void search();
    void sort();
    void tickRow();
    void tickAll();
    void logOut();
    void changeEnterprise();
    void signalNothing();

    FormFixture f;
    ListModel model;
    QRandomGenerator random;
    QTableWidget *table;
};

DevInfo Twins::someDevice()
{
    const auto some = [this](const QStringList &texts) { return texts.at(below(texts.size())); };
    DevInfo dev = FormFixture::device(below(maxDevices));
    const QString number = QString::number(below(40));
    dev.name = some({dev.name, dev.name, QStringLiteral("CAM ") + number, QStringLiteral("Dome ") + number, QString()});
    dev.serialNumber = some({dev.serialNumber, dev.serialNumber, QStringLiteral("X") + number});
    dev.ip = some({dev.ip, dev.ip, QStringLiteral("9.1.200.") + number, QString()});
    dev.password = some({QString(), QStringLiteral("12345678"), QStringLiteral("sommer31")});
    dev.kindCode = below(12) == 0 ? 2 : below(2) * 5 + 1;
    dev.accessCode = below(12) == 0 ? 2 : 1;
    return dev;
}

void Twins::update(const DevInfo &dev, bool isHeard)
{
    const QSignalBlocker quiet(isHeard ? nullptr : &DataSignals::instance());
    DevsMgrData::instance().updateDevs({dev});
    if (Device *known = find(model.store, dev.id))
        known->info = dev;
    else
        model.store.push_back({dev.id, dev});
    if (Row *row = find(model.rows, dev.id); row && isHeard)
        *row = {dev.id, dev.name, dev.serialNumber, dev.ip, row->isTicked, row->isHidden};
    model.search();
}

void Twins::setStatus(const QString &id, int status, bool isHeard)
{
    const QSignalBlocker quiet(isHeard ? nullptr : &DataSignals::instance());
    DevsMgrData::instance().setDevStatus(id, vms_sdk::DevStatus(status));
    Device *known = find(model.store, id);
    if (!known || std::exchange(known->status, status) == status || !isHeard)
        return;
    model.addEligible(id);
    if (!model.isEligible(id))
        removeIf(model.rows, [&](const Row &row) { return row.id == id; });
}

void Twins::changeStatus()
{
    constexpr int states[]{0, 1, 1, 1, 2, 3, 5, 6};
    setStatus(someId(), states[below(8)], true);
}

void Twins::changeSite()
{
    const int status = below(4) == 0 ? vms_sdk::DevOffline : vms_sdk::DevOnline;
    for (int i = 0; i < maxDevices; ++i)
        setStatus(someId(), status, true);
}

void Twins::deleteDevices()
{
    const QStringList ids{someId(), someId(), someId()};
    DevsMgrData::instance().deleteDevs(ids);
    removeIf(model.store, [&](const Device &dev) { return ids.contains(dev.id); });
    removeIf(model.rows, [&](const Row &row) { return ids.contains(row.id); });
}

void Twins::search()
{
    constexpr const char *keywords[]{"", "", "cam 1", "SN2", "0.0.1", "dome", "2", "nowhere"};
    model.keyword = QLatin1String(keywords[below(8)]);
    f.searchEdit()->setText(model.keyword);
    model.search();
}

void Twins::sort()
{
    constexpr const char *headers[]{"orderNumWt", "devName", "devSn", "devIp"};
    const int column = below(4);
    QTest::mouseClick(f.page(headers[column]), Qt::LeftButton);
    if (column > 0)
        model.sort(column);
}

void Twins::tickRow()
{
    settle();
    const int row = below(maxDevices);
    if (row >= int(model.rows.size()) || model.rows[std::size_t(row)].isHidden)
        return;
    table->scrollToItem(table->item(row, 0));
    const QRect cell = table->visualItemRect(table->item(row, 0));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, {cell.left() + 10, cell.center().y()});
    model.rows[std::size_t(row)].isTicked ^= true;
}

void Twins::tickAll()
{
    settle(); // a click means the state that the box shows
    const bool isTicked = model.allState() != Qt::Checked;
    f.tickAll();
    for (Row &row : model.rows)
        row.isTicked = row.isHidden ? row.isTicked : isTicked;
}

void Twins::logOut()
{
    model.freelyOperable.clear();
    SaasWorker::instance().setFreelyOperable({});
    emit LoginSignals::instance().signalSaasLogoutSuccess();
    model.removeIneligible();
}

void Twins::changeEnterprise()
{
    for (int i = 0; i < 4; ++i) {
        update(someDevice(), false);
        setStatus(someId(), below(2), false);
        model.freelyOperable.insert(someDevice().serialNumber);
    }
    SaasWorker::instance().setFreelyOperable(model.freelyOperable);
    emit LoginSignals::instance().signalEnterpriseStatus(below(3));
    for (const Device &dev : model.store)
        model.addEligible(dev.id);
}

void Twins::signalNothing()
{
    emit DataSignals::instance().signalUpdateDevs({someDevice()}, false, true);
    emit DataSignals::instance().signalDeleteDevs({someId()}, false);
}

const char *Twins::act()
{
    struct Action
    {
        int share;
        const char *name;
        void (Twins::*act)();
    };
    constexpr Action actions[]{{8, "status", &Twins::changeStatus},  {1, "site", &Twins::changeSite},
                               {2, "update", &Twins::changeDevice},  {1, "delete", &Twins::deleteDevices},
                               {3, "search", &Twins::search},        {2, "sort", &Twins::sort},
                               {3, "tick", &Twins::tickRow},         {2, "all", &Twins::tickAll},
                               {1, "log out", &Twins::logOut},       {1, "enterprise", &Twins::changeEnterprise},
                               {1, "nothing", &Twins::signalNothing}};
    int share = below(25);
    const auto *action = std::begin(actions);
    while ((share -= action->share) >= 0)
        ++action;
    (this->*action->act)();
    return action->name;
}

QString Twins::difference(bool isSettled) const
{
    const QHeaderView *header = table->verticalHeader();
    const int count = int(model.rows.size());
    if (table->rowCount() != count || header->count() != count)
        return QStringLiteral("%1 rows and %2 sections, not %3").arg(table->rowCount()).arg(header->count()).arg(count);
    const int height = header->defaultSectionSize();
    int number = 0;
    for (int row = 0; row < count; ++row) {
        const Row &expected = model.rows[std::size_t(row)];
        const auto item = [=](int column) { return table->item(row, column); };
        const QString at = QStringLiteral("row %1, %2: ").arg(row).arg(expected.id);
        if (item(0)->data(devIdRole) != expected.id)
            return at + item(0)->data(devIdRole).toString();
        if (item(1)->text() != expected.name || item(2)->text() != expected.serial || item(3)->text() != expected.ip
            || item(1)->toolTip() != expected.name || !item(3)->toolTip().isEmpty())
            return at + QStringLiteral("texts %1, %2, %3").arg(item(1)->text(), item(2)->text(), item(3)->text());
        if (table->isRowHidden(row) != expected.isHidden)
            return at + QStringLiteral("hidden");
        if ((item(0)->checkState() == Qt::Checked) != expected.isTicked)
            return at + QStringLiteral("ticked");
        if (header->sectionPosition(row) != number * height
            || table->rowHeight(row) != (expected.isHidden ? 0 : height))
            return at + QStringLiteral("%1 high at %2").arg(table->rowHeight(row)).arg(header->sectionPosition(row));
        if (!expected.isHidden && item(0)->text() != QString::number(++number))
            return at + QStringLiteral("number ") + item(0)->text();
    }
    if (header->length() != number * height)
        return QStringLiteral("%1 long").arg(header->length());
    if (f.form->checkedDevIds() != model.checkedIds())
        return QStringLiteral("checked: ") + f.form->checkedDevIds().join(QLatin1Char(' '));
    if (isSettled && f.box("selAll")->checkState() != model.allState())
        return QStringLiteral("\"All\" is %1, not %2").arg(f.box("selAll")->checkState()).arg(model.allState());
    if (isSettled && table->verticalScrollBar()->maximum() != qMax(0, number * height - table->viewport()->height()))
        return QStringLiteral("scrolls to %1").arg(table->verticalScrollBar()->maximum());
    return {};
}

} // namespace

/// The form's list of devices beside a plain model of it.
class DevlistModelTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void followsWhateverHappens_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= qMax(40, qEnvironmentVariableIntValue("ORDA_LIST_SEEDS")); ++seed)
            QTest::addRow("seed %d", seed) << seed;
    }

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
            const QString last = QStringList(history.mid(history.size() - 8)).join(QLatin1String(", "));
            QVERIFY2(
                difference.isEmpty(),
                qPrintable(QStringLiteral("seed %1, step %2: %3; last: %4").arg(seed).arg(step).arg(difference, last)));
        }
    }
};

ORDA_TEST_MAIN(DevlistModelTest)
#include "devlist_model_test.moc"
