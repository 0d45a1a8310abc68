#include "support/FamilyTable.h"
#include "support/FormFixture.h"
#include "support/OrdaTest.h"

#include <families/Families.h>
#include <orda_base/ComboBox.h>
#include <orda_base/NavigationButton.h>
#include <orda_base/Theme.h>

#include <QComboBox>
#include <QHelpEvent>
#include <QJsonArray>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionComboBox>

#include <memory>
#include <vector>

namespace {

/// A device that knows every key a page can write, so that every editor's value reaches the wire.
QStringList knowsAll(const ScriptedTransport::Request &request)
{
    QJsonObject device{{"streams", QJsonArray{QJsonObject{{"streamid", 0}}, QJsonObject{{"streamid", 1}}}}};
    for (const orda_batchCfg::FamilyEntry &entry : orda_batchCfg::Families::all())
        for (const orda_batchCfg::CfgKey &key : entry.family.keys)
            device.insert(key.name, "");
    return {answer(request.method(), device)};
}

/// What the page sends with everything ticked, once for each choice of its combos.
QStringList sentBy(const FamilyRow &family)
{
    const FormFixture f(1, knowsAll);
    f.tickAll();
    const QWidget *page = f.form->findChild<QWidget *>(family.pageName);
    if (auto *name = page->findChild<QLineEdit *>("nameParam"))
        name->setText("Gate 1"); // what stands there at first is a text of the language
    const auto combos = page->findChildren<QComboBox *>();
    int choices = 1;
    for (const QComboBox *combo : combos)
        choices = qMax(choices, combo->count());
    for (int choice = 0; choice < choices; ++choice) {
        for (QComboBox *combo : combos)
            combo->setCurrentIndex(qMin(choice, combo->count() - 1));
        f.configure(family.navigationKey, family.pageName);
        dismissDialogs();
    }
    QStringList texts;
    for (const ScriptedTransport::Request &request : qAsConst(f.transport->requests))
        texts.append(request.text);
    return texts;
}

/// Every text four tenths longer, by a word.
class Lengthened : public QTranslator
{
    Q_OBJECT

public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        const QString text = QString::fromUtf8(source);
        return text + ' ' + QString(qCeil(text.size() * 0.4) - 1, 'n');
    }
};

} // namespace

/// The languages of the window: what they must not change, and whether their texts have room.
class LanguageTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void initTestCase() { orda_base::Theme::apply(*qApp); }
    void cleanup()
    {
        m_translators.clear();
        OrdaTest::cleanup();
    }

    void wireIsTheSameInEveryLanguage_data() { addFamilies({"de", "zh_CN"}); }

    void wireIsTheSameInEveryLanguage()
    {
        QFETCH(FamilyRow, family);
        QFETCH(QString, language);
        const QStringList inEnglish = sentBy(family);
        QVERIFY(inEnglish.size() >= 2);

        install(language);
        QVERIFY(QCoreApplication::translate("orda_batchCfg::ParamsCfgTask", "success") != "success");
        QCOMPARE(sentBy(family), inEnglish);
    }

    /// 1280 x 720, less a window's frame, menu and status bar.
    void fitsAFieldLaptop()
    {
        for (const char *language : {"en", "de", "zh_CN"}) {
            m_translators.clear();
            if (language != QLatin1String("en"))
                install(language);
            const QSize needed = FormFixture(3, knowsAll).form->minimumSizeHint();
            QVERIFY2(needed.width() <= 1264 && needed.height() <= 600,
                     qPrintable(QStringLiteral("%1: %2 x %3").arg(language).arg(needed.width()).arg(needed.height())));
        }
    }

    void longerTextsAreNotCutOff_data() { addFamilies({"lengthened"}); }

    void longerTextsAreNotCutOff()
    {
        QFETCH(FamilyRow, family);
        Lengthened lengthened;
        QCoreApplication::installTranslator(&lengthened);
        const FormFixture f(3, knowsAll);
        f.form->findChild<QAbstractButton *>(family.navigationKey)->click();
        f.form->resize(f.form->minimumSizeHint());
        QApplication::processEvents();

        QVERIFY2(f.form->width() <= 1600, "the form does not fit on a screen");
        const auto combos = f.form->findChildren<orda_base::ComboBox *>();
        for (orda_base::ComboBox *combo : combos) {
            for (int item = 0; item < combo->count() && combo->isVisible(); ++item) {
                combo->setCurrentIndex(item);
                QHelpEvent help(QEvent::ToolTip, {}, {});
                QCoreApplication::sendEvent(combo, &help);
                QStyleOptionComboBox option;
                option.initFrom(combo);
                const int room = combo->style()
                                     ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
                                     .width();
                const int needed = combo->fontMetrics().horizontalAdvance(combo->currentText());
                QVERIFY2(needed <= room || combo->toolTip() == combo->currentText(), qPrintable(combo->currentText()));
            }
        }
        // A choice may have shown more editors; what the window has no room for is scrolled.
        auto *area = f.form->findChild<QWidget *>(family.pageName)->findChild<QScrollArea *>();
        QTRY_VERIFY(area->widget()->width() >= area->widget()->minimumSizeHint().width());

        int looked = 0;
        const auto widgets = f.form->findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            const auto *label = qobject_cast<const QLabel *>(widget);
            const auto *button = qobject_cast<const QAbstractButton *>(widget);
            const QString text = label ? label->text() : button ? button->text() : QString();
            if (text.isEmpty() || !widget->isVisible())
                continue;
            ++looked;
            if (const auto *entry = qobject_cast<const orda_base::NavigationButton *>(widget)) {
                QVERIFY2(entry->isTextWhole(), qPrintable(text));
                continue;
            }
            QVERIFY2(widget->width() >= widget->sizeHint().width() && widget->height() >= widget->sizeHint().height(),
                     qPrintable(QStringLiteral("%1 \"%2\"").arg(widget->objectName(), text)));
            if (area->isAncestorOf(widget))
                area->ensureWidgetVisible(widget, 0, 0);
            QVERIFY2(widget->visibleRegion().boundingRect().width() >= widget->sizeHint().width(), qPrintable(text));
        }
        QVERIFY(looked > 10);
    }

private:
    static void addFamilies(const QStringList &languages)
    {
        columns<FamilyRow, QString>({"family", "language"});
        const QList<FamilyRow> families = offeredFamilies();
        for (const FamilyRow &family : families)
            for (const QString &language : languages)
                row(qPrintable(family.name + ", " + language), family, language);
    }

    void install(const QString &language)
    {
        for (const char *part : {"batchCfg", "clientlibs"}) {
            m_translators.push_back(std::make_unique<QTranslator>());
            QVERIFY(m_translators.back()->load(QStringLiteral(":/translations/%1_%2").arg(part, language)));
            QCoreApplication::installTranslator(m_translators.back().get());
        }
    }

    std::vector<std::unique_ptr<QTranslator>> m_translators; // of the running test function
};

ORDA_TEST_MAIN(LanguageTest)

#include "language_test.moc"
