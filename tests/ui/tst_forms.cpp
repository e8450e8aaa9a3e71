#include "ui_dialogoptions.h"
#include "ui_dialogstart.h"
#include "ui_mainwindow.h"

#include <QDir>
#include <QHeaderView>
#include <QMetaEnum>
#include <QTest>

#include <map>
#include <memory>

namespace {

QObject *find(QObject *root, const QString &name)
{
    return root->objectName() == name ? root : root->findChild<QObject *>(name);
}

template<typename Picture>
QImage imageOf(const Picture &picture);

template<>
QImage imageOf(const QIcon &icon)
{
    return icon.pixmap(icon.availableSizes().value(0)).toImage();
}

template<>
QImage imageOf(const QPixmap &pixmap)
{
    return pixmap.toImage();
}

QString sizePolicyText(const QSizePolicy &policy)
{
    const QMetaEnum names = QMetaEnum::fromType<QSizePolicy::Policy>();
    return QLatin1String(names.valueToKey(policy.horizontalPolicy())) + QLatin1Char(',') +
           QLatin1String(names.valueToKey(policy.verticalPolicy()));
}

// What stands for the names of the lower level of a property, such as "font.bold".
QString partText(const QObject *object, const QString &part, const QString &whole)
{
    if (whole == QLatin1String("header"))
        return static_cast<const QTreeView *>(object)->header()->property(part.toLatin1().constData()).toString();
    const QFont font = object->property("font").value<QFont>();
    if (part == QLatin1String("pointSize"))
        return QString::number(font.pointSize());
    const bool value = part == QLatin1String("bold") ? font.bold() : font.italic();
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString textOf(QObject *object, const QString &name)
{
    if (name.contains(QLatin1Char('.')))
        return partText(object, name.section(QLatin1Char('.'), 1), name.section(QLatin1Char('.'), 0, 0));
    if (name == QLatin1String("layout"))
        return qobject_cast<QWidget *>(object)->layout()->objectName();
    if (name == QLatin1String("buddy"))
        return qobject_cast<QLabel *>(object)->buddy()->objectName();
    if (const auto layout = qobject_cast<QLayout *>(object)) {
        const QMargins margins = layout->contentsMargins();
        if (name == QLatin1String("margins"))
            return QStringLiteral("%1,%2,%3,%4")
                .arg(margins.left())
                .arg(margins.top())
                .arg(margins.right())
                .arg(margins.bottom());
        if (name == QLatin1String("count"))
            return QString::number(layout->count());
        if (const auto grid = qobject_cast<QGridLayout *>(object))
            return QString::number(name == QLatin1String("rowCount") ? grid->rowCount() : grid->columnCount());
    }

    const int index = object->metaObject()->indexOfProperty(name.toLatin1().constData());
    if (index < 0)
        return QStringLiteral("no such property");
    const QMetaProperty property = object->metaObject()->property(index);
    const QVariant value = property.read(object);
    if (name == QLatin1String("cursor"))
        return QLatin1String(QMetaEnum::fromType<Qt::CursorShape>().valueToKey(value.value<QCursor>().shape()));
    if (name == QLatin1String("sizePolicy"))
        return sizePolicyText(value.value<QSizePolicy>());
    if (name == QLatin1String("alignment")) {
        const int flags = value.toInt();
        QStringList names;
        const QList<QPair<int, QString>> all{{Qt::AlignRight, QStringLiteral("AlignRight")},
                                             {Qt::AlignHCenter, QStringLiteral("AlignHCenter")},
                                             {Qt::AlignLeft, QStringLiteral("AlignLeft")},
                                             {Qt::AlignVCenter, QStringLiteral("AlignVCenter")}};
        for (const auto &flag : all) {
            if (flags & flag.first)
                names << flag.second;
        }
        return names.join(QLatin1Char('|'));
    }
    if (property.isFlagType())
        return QLatin1String(property.enumerator().valueToKeys(value.toInt()));
    if (property.isEnumType())
        return QLatin1String(property.enumerator().valueToKey(value.toInt()));
    if (value.canConvert<QSize>() && value.userType() == QMetaType::QSize)
        return QStringLiteral("%1x%2").arg(value.toSize().width()).arg(value.toSize().height());
    return value.toString();
}

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

/// Every form against the table of what it must be. The forms are set up alone, without the classes that use them, and
/// without the application's style sheet, which has its own say on fonts and widths.
class TestForms final : public QObject
{
    Q_OBJECT

    QMainWindow m_mainWindow;
    QDialog m_options;
    QDialog m_start;
    Ui::MainWindow m_mainWindowForm;
    Ui::DialogOptions m_optionsForm;
    Ui::DialogStart m_startForm;
    std::map<QString, QWidget *> m_forms{{QStringLiteral("MainWindow"), &m_mainWindow},
                                         {QStringLiteral("DialogOptions"), &m_options},
                                         {QStringLiteral("DialogStart"), &m_start}};

public:
    TestForms()
    {
        m_mainWindowForm.setupUi(&m_mainWindow);
        m_optionsForm.setupUi(&m_options);
        m_startForm.setupUi(&m_start);
    }

private Q_SLOTS:
    void everyPropertyIsThatOfTheTable_data()
    {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("object");
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("property");
        QTest::addColumn<QString>("value");
        QFile table(QStringLiteral(ORVANTA_TEST_DATA "/forms.tsv"));
        QVERIFY(table.open(QIODevice::ReadOnly));
        while (!table.atEnd()) {
            const QString line = QString::fromUtf8(table.readLine()).chopped(1);
            if (line.startsWith(QLatin1Char('#')))
                continue;
            const QStringList cells = line.split(QLatin1Char('\t'));
            QCOMPARE(cells.size(), 5);
            const QString value = QString(cells.at(4)).replace(str("\\n"), str("\n")).replace(str("{blank}"), str(" "));
            QTest::newRow(qPrintable(cells.mid(0, 4).join(QLatin1Char(' '))))
                << cells.at(0) << cells.at(1) << cells.at(2) << cells.at(3) << value;
        }
    }

    void everyPropertyIsThatOfTheTable()
    {
        QFETCH(QString, form);
        QFETCH(QString, object);
        QFETCH(QString, className);
        QFETCH(QString, property);
        QFETCH(QString, value);
        QObject *found = find(m_forms.at(form), object);
        QVERIFY(found);
        QCOMPARE(str(found->metaObject()->className()), className);
        if (property == str("icon") || property == str("windowIcon") || property == str("pixmap")) {
            const QPixmap expected(str(":/img/") + value);
            QVERIFY(!expected.isNull());
            const QVariant picture = found->property(property.toLatin1().constData());
            QCOMPARE(property == str("pixmap") ? imageOf(picture.value<QPixmap>()) : imageOf(picture.value<QIcon>()),
                     expected.toImage());
        } else {
            QCOMPARE(textOf(found, property), value);
        }
    }

    void theMainWindowWearsItsOwnSheet()
    {
        QFile file(QStringLiteral(ORVANTA_TEST_DATA "/style/mainwindow.css"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(m_mainWindow.styleSheet(), QString::fromUtf8(file.readAll()));
        QCOMPARE(m_mainWindow.styleSheet().count(QLatin1Char('\n')), 44);
    }

    void theRowsOfTheMainWindowStandInTheirOrder()
    {
        const auto *row = m_mainWindowForm.horizontalLayout;
        QCOMPARE(row->itemAt(0)->widget(), m_mainWindowForm.label_5);
        QCOMPARE(row->itemAt(1)->spacerItem()->sizeHint(), QSize(1, 20));
        QCOMPARE(row->itemAt(1)->spacerItem()->expandingDirections(), Qt::Horizontal);
        QCOMPARE(row->itemAt(2)->widget(), m_mainWindowForm.pushButtonWebsite);
        const auto *column = m_mainWindowForm.verticalLayout;
        QCOMPARE(column->itemAt(0)->layout(), row);
        QCOMPARE(column->itemAt(1)->widget(), m_mainWindowForm.groupBox);
        QCOMPARE(column->itemAt(2)->widget(), m_mainWindowForm.groupBox_2);
        QCOMPARE(column->itemAt(3)->spacerItem()->sizeHint(), QSize(20, 1));
        QCOMPARE(column->itemAt(3)->spacerItem()->expandingDirections(), Qt::Vertical);
        const auto *grid = m_mainWindowForm.gridLayout;
        QCOMPARE(grid->itemAtPosition(0, 0)->widget(), m_mainWindowForm.label);
        QCOMPARE(grid->itemAtPosition(0, 1)->widget(), m_mainWindowForm.comboBox);
        QCOMPARE(grid->itemAtPosition(1, 0)->widget(), m_mainWindowForm.label_2);
        QCOMPARE(grid->itemAtPosition(1, 1)->widget(), m_mainWindowForm.lineEditPath);
        QCOMPARE(grid->itemAtPosition(1, 2)->widget(), m_mainWindowForm.toolButtonFolder);
        QCOMPARE(grid->itemAtPosition(2, 0)->widget(), m_mainWindowForm.label_3);
        QCOMPARE(grid->itemAtPosition(2, 1)->widget(), m_mainWindowForm.lineEditCheckSumOut);
        const auto *second = m_mainWindowForm.gridLayout_2;
        QCOMPARE(second->itemAtPosition(0, 0)->widget(), m_mainWindowForm.label_4);
        QCOMPARE(second->itemAtPosition(0, 1)->widget(), m_mainWindowForm.lineEditCheckSumIn);
        QCOMPARE(second->itemAtPosition(0, 2)->widget(), m_mainWindowForm.labelValid);
        QCOMPARE(m_mainWindow.toolBarArea(m_mainWindowForm.toolBar), Qt::TopToolBarArea);
        QCOMPARE(m_mainWindowForm.toolBar->actions(), QList<QAction *>{m_mainWindowForm.actionConfig});
    }

    void theListsHaveTheirTexts()
    {
        const QStringList pictures{str("general.png"), str("languages.png"), str("info.png")};
        const QStringList texts{str("General"), str("Localisation"), str("Info")};
        QCOMPARE(m_optionsForm.listWidget->count(), 3);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(m_optionsForm.listWidget->item(i)->text(), texts.at(i));
            QCOMPARE(imageOf(m_optionsForm.listWidget->item(i)->icon()),
                     QPixmap(str(":/img/") + pictures.at(i)).toImage());
        }
        for (const QTreeWidget *tree : {m_optionsForm.listLocale, m_startForm.listLocale}) {
            QCOMPARE(tree->columnCount(), 3);
            QCOMPARE(tree->headerItem()->text(0), str("Code"));
            QCOMPARE(tree->headerItem()->text(1), str("Language"));
            QCOMPARE(tree->headerItem()->text(2), str("Country"));
        }
    }

    void thePagesStandInTheirOrder()
    {
        QCOMPARE(m_optionsForm.stackedWidget->indexOf(m_optionsForm.stackedWidgetPage1), 0);
        QCOMPARE(m_optionsForm.stackedWidget->indexOf(m_optionsForm.stackedWidgetPage4), 1);
        QCOMPARE(m_optionsForm.stackedWidget->indexOf(m_optionsForm.stackedWidgetPage5), 2);
        QCOMPARE(m_startForm.stackedWidget->indexOf(m_startForm.page), 0);
        QCOMPARE(m_startForm.stackedWidget->indexOf(m_startForm.page_2), 1);
        const QMargins margins = m_optionsForm.verticalLayout_2->contentsMargins();
        const QMargins defaults = m_optionsForm.verticalLayout_3->contentsMargins();
        QCOMPARE(margins, QMargins(defaults.left(), 6, 0, defaults.bottom()));
    }

    void theTabKeyGoesThroughTheWidgetsInTheirOrder()
    {
        const auto comesBefore = [](QWidget *first, QWidget *second) {
            for (QWidget *next = first->nextInFocusChain(); next != first && !next->isWindow();
                 next = next->nextInFocusChain()) {
                if (next == second)
                    return true;
            }
            return false;
        };
        QVERIFY(comesBefore(m_optionsForm.checkBoxFinal, m_optionsForm.listLocale));
        QVERIFY(comesBefore(m_optionsForm.listLocale, m_optionsForm.textBrowser));
        QVERIFY(comesBefore(m_startForm.textBrowser, m_startForm.buttonNext));
        QVERIFY(comesBefore(m_mainWindowForm.comboBox, m_mainWindowForm.lineEditPath));
        QVERIFY(comesBefore(m_mainWindowForm.lineEditPath, m_mainWindowForm.lineEditCheckSumIn));
    }

    void theFormsTextsComeBackWithEveryRetranslation()
    {
        m_mainWindowForm.lineEditCheckSumIn->setText(str("in"));
        m_mainWindowForm.lineEditCheckSumOut->setText(str("out"));
        m_mainWindowForm.lineEditPath->setText(str("path"));
        m_mainWindow.setWindowTitle(str("title"));
        m_mainWindowForm.retranslateUi(&m_mainWindow);
        QCOMPARE(m_mainWindowForm.lineEditCheckSumIn->text(), QString());
        QCOMPARE(m_mainWindowForm.lineEditCheckSumOut->text(), QString());
        QCOMPARE(m_mainWindowForm.lineEditPath->text(), str("path"));
        QCOMPARE(m_mainWindow.windowTitle(), str("title"));
    }

    void everyPictureIsThereTwice()
    {
        const QDir folder(str(":/img"));
        const QStringList names = folder.entryList({str("*.png")});
        QVERIFY(names.size() > 30);
        for (const QString &name : names) {
            if (name.contains(QLatin1Char('@')) || name.startsWith(str("orvanta")))
                continue;
            const QImage picture(folder.filePath(name));
            const QImage twice(folder.filePath(QString(name).replace(str(".png"), str("@2x.png"))));
            QVERIFY2(!picture.isNull(), qPrintable(name));
            QCOMPARE(twice.size(), picture.size() * 2);
        }
        QCOMPARE(QImage(str(":/img/logo.png")).size(), QSize(102, 30));
        QCOMPARE(QImage(str(":/img/general.png")).size(), QSize(32, 24));
    }
};

QTEST_MAIN(TestForms)
#include "tst_forms.moc"
