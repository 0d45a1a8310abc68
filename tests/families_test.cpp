#include "support/FamilyTable.h"
#include "support/FormFixture.h"
#include "support/OrdaTest.h"
#include "support/PropertyWatch.h"

#include <onvif/OnvifParamsCfgPage.h>
#include <orda_data/DevsMgrData.h>
#include <orda_worker/AssistantSignals.h>
#include <orda_worker/EventConfirmInfo.h>

#include <QComboBox>
#include <QJsonArray>
#include <QStackedWidget>

using Request = ScriptedTransport::Request;

namespace {

/// What a device of families.json has, by read method; some keys that others have are missing.
QJsonObject ordinaryDevice(const QString &family)
{
    return expectedOf(family).value("device").toObject();
}

QStringList answers(const QJsonObject &device, const Request &request)
{
    return {answer(request.method(), device.value(request.method()).toObject())};
}

/// The form with one page opened.
class PageFixture : public FormFixture
{
public:
    PageFixture(const FamilyRow &opened, int devices, const ScriptedTransport::Script &script)
        : FormFixture(devices, script)
        , m_family(opened)
    {
        QFile::remove(recordPath(opened));
        if (opened.navigationKey.isEmpty()) {
            auto *stack = form->findChild<QStackedWidget *>();
            stack->setCurrentIndex(stack->addWidget(new orda_batchCfg::OnvifParamsCfgPage(form)));
        }
        tickAll();
    }

    QWidget *theirPage() const { return form->findChild<QWidget *>(m_family.pageName); }

    /// Leaves only these parameters ticked, and these streams where the page has any.
    void select(const QStringList &wanted) const
    {
        const auto all = theirPage()->findChildren<QCheckBox *>();
        for (QCheckBox *box : all)
            if (!box->objectName().startsWith("all") && wanted.contains(box->objectName()) != box->isChecked())
                box->click();
    }

    orda_worker::EventConfirmInfo run() const
    {
        const QSignalSpy summaries(&orda_worker::AssistantSignals::instance(),
                                   &orda_worker::AssistantSignals::signalEventConfirmRaised);
        if (!m_family.navigationKey.isEmpty())
            configure(m_family.navigationKey, m_family.pageName);
        else
            theirPage()->findChild<QAbstractButton *>("okBt")->click();
        return summaries.value(0).value(0).value<orda_worker::EventConfirmInfo>();
    }

private:
    FamilyRow m_family;
};

/// One step of an operator on a page, [what, object name, value]; whether there was such an editor.
bool isDone(const QWidget *page, const QJsonArray &step)
{
    const QString what = step.at(0).toString();
    const QString name = step.at(1).toString();
    auto *button = page->findChild<QAbstractButton *>(name);
    auto *combo = page->findChild<QComboBox *>(name);
    auto *edit = page->findChild<QLineEdit *>(name);
    if (what == "click" && button)
        return button->click(), true;
    if (what == "choose" && combo && step.at(2).isDouble())
        return combo->setCurrentIndex(step.at(2).toInt()), true;
    if (what == "write" && edit && step.at(2).isString())
        return edit->setText(step.at(2).toString()), true;
    if (what == "type" && edit && step.at(2).isString())
        return QTest::keyClicks(edit, step.at(2).toString()), true;
    return false;
}

QByteArray text(const QJsonValue &value)
{
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
}

QSet<QString> asSet(const QStringList &names)
{
    return {names.begin(), names.end()};
}

/// Object names of the check boxes of what is meant, as a page tells them.
QSet<QString> meantBoxes(const QVariantMap &current)
{
    QSet<QString> names;
    const QVariantList members = current["members"].toList();
    for (const QVariant &member : members) {
        const QVariantList boxes = member.toMap()["boxes"].toList();
        QStringList ticked;
        for (const QVariant &box : boxes)
            if (qobject_cast<QAbstractButton *>(box.value<QObject *>())->isChecked())
                ticked.append(box.value<QObject *>()->objectName());
        if (ticked.size() == boxes.size())
            names.unite(asSet(ticked));
    }
    return names;
}

} // namespace

/// Each family on the wire: which requests it sends and with what, and the names and texts that it goes by.
class FamiliesTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void writesWhatWasSelected_data()
    {
        columns<QString, QJsonObject>({"name", "run"});
        for (const FamilyRow &family : familyTable()) {
            const QJsonArray runs = expectedOf(family.name).value("runs").toArray();
            for (const QJsonValue &run : runs)
                QTest::addRow("%s, %s", qPrintable(family.name), qPrintable(run["name"].toString()))
                    << family.name << run.toObject();
        }
    }

    void writesWhatWasSelected()
    {
        QFETCH(QString, name);
        QFETCH(QJsonObject, run);
        const QJsonArray requests = run.value("requests").toArray();
        QVERIFY2(!requests.isEmpty(), "the row expects nothing");
        const QJsonObject device = run.contains("device") ? run["device"].toObject() : ordinaryDevice(name);
        const PageFixture f(familyRow(name), 1, [&device](const Request &request) { return answers(device, request); });
        const QJsonArray before = run.value("before").toArray();
        for (const QJsonValue &step : before)
            QVERIFY2(isDone(f.theirPage(), step.toArray()), text(step));
        const QStringList boxes = run.value("boxes").toString().split(' ');
        for (const QString &box : boxes)
            QVERIFY2(f.theirPage()->findChild<QCheckBox *>(box), qPrintable(box));
        f.select(boxes);
        // What the page tells beforehand is what the press then announces, and what its boxes say.
        const QVariantMap current = f.theirPage()->property("current").toMap();
        QVariantMap announced;
        const PropertyWatch watch(f.theirPage(), "run",
                                  [&announced](const QVariant &begun) { announced.insert(begun.toMap()); });
        const orda_worker::EventConfirmInfo summary = f.run();
        QCOMPARE(current["family"], announced["family"]);
        QCOMPARE(text(current["values"].toJsonObject()), text(announced["values"].toJsonObject()));
        QSet<QString> meant = asSet(boxes);
        if (!meant.contains("HDStream"))
            meant.remove("smartEncoding"); // which only the main stream has
        QCOMPARE(meantBoxes(current), meant);
        QCOMPARE(summary.title, familyRow(name).title);
        QCOMPARE(summary.text, summaryOf(1, 0));

        QStringList methods;
        for (const QJsonValue &request : requests)
            methods.append(request.toObject().keys().value(0));
        QCOMPARE(f.transport->methods().join('\n'), methods.join('\n'));
        for (int i = 0; i < requests.size(); ++i) {
            const QString &method = methods.at(i);
            QJsonObject expected{{"method", method}, {"level", "Operator"}, {"param", requests.at(i)[method]}};
            if (requests.at(i)[method].isNull()) // a request without parameters
                expected.remove("param");
            QCOMPARE(text(f.transport->requests.at(i).json()), text(expected));
        }
    }

    void isNamedAsItsUsersKnowIt_data()
    {
        columns<FamilyRow>({"family"});
        for (const FamilyRow &family : familyTable())
            row(qPrintable(family.name), family);
    }

    void isNamedAsItsUsersKnowIt()
    {
        QFETCH(FamilyRow, family);
        const QJsonObject expected = expectedOf(family.name);
        QCOMPARE(family.title, expected["title"].toString());
        QCOMPARE(family.recordFile, expected["record"].toString());
        QCOMPARE(family.timeoutText, expected["timeout"].toString());
        QJsonArray requests;
        for (int i = 0; i < family.methods.size(); ++i)
            requests.append(QJsonArray{family.methods.at(i), family.failures.at(i)});
        QCOMPARE(text(requests), text(expected["requests and failures"]));
        QVERIFY2(!expected["runs"].toArray().isEmpty(), "families.json has no run of the family");
    }

    void cloudSettingsAreCheckedWhenTheDeviceIsBack_data()
    {
        columns<QString, QString>({"device", "message"}); // when it is read again
        row("new settings", R"({"qbcloud_en": false, "qbcloud_addr": "new", "qbcloud_type": "public", "more": 1})",
            "success"); // storm_test knows devices that come back with others
        row("a number for a switch", R"({"qbcloud_en": 0, "qbcloud_addr": "new", "qbcloud_type": "public"})",
            "Failed to set platform parameters(-1)");
    }

    void cloudSettingsAreCheckedWhenTheDeviceIsBack()
    {
        QFETCH(QString, device);
        QFETCH(QString, message);
        auto &store = orda_data::DevsMgrData::instance();
        const QString set = "ifconfig_qbcloud_set_param";
        const auto blink = [&store](const QString &id) {
            store.setDevStatus(id, vms_sdk::DevOffline);
            store.setDevStatus(id, vms_sdk::DevLocked);
        };
        int reads = 0;
        const PageFixture f(familyRow("platform"), 2, [&](const Request &request) -> QStringList {
            if (request.devId == "dev1")
                return answers(ordinaryDevice("platform"), request);
            if (request.method() == set) { // applies it and drops out, before it can answer
                QTimer::singleShot(0, &store, [blink, id = request.devId] { blink(id); });
                return {};
            }
            if (++reads > 1)
                return {answer(request.method(), QJsonDocument::fromJson(device.toUtf8()).object())};
            QTimer::singleShot(0, &store, [blink] { blink("dev1"); }); // somebody else, and too early
            return answers(ordinaryDevice("platform"), request);
        });
        f.theirPage()->findChild<QLineEdit *>("serviceAddressParam")->setText("new");
        f.run();
        QCOMPARE(reads, 2);
        QCOMPARE(recordedMessages(familyRow("platform")).value("SN0"), message);
        QCOMPARE(recordedMessages(familyRow("platform")).value("SN1"), "success");
        QCOMPARE(f.transport->requests.size(), 5);
    }
};

ORDA_TEST_MAIN(FamiliesTest)
#include "families_test.moc"
