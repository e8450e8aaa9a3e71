#include "tests/ui/uitest.h"

#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

class TestVisualStyle final : public UiTest
{
    Q_OBJECT

private Q_SLOTS:
    void theSheetIsThatOfTheDesignToTheCharacter()
    {
        QFile file(QStringLiteral(ORVANTA_TEST_DATA "/style/application.css"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(qApp->styleSheet(), QString::fromUtf8(file.readAll()));
    }

    void theWidgetStyleIsPlastiqueOrItsHeir()
    {
        const bool isThere = QStyleFactory::keys().contains(str("plastique"), Qt::CaseInsensitive);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        QVERIFY(isThere);
#endif
        qApp->setStyleSheet(QString()); // it wraps the style
        QCOMPARE(QApplication::style()->objectName().toLower(), isThere ? str("plastique") : str("fusion"));
        VisualStyle::apply();
    }

    void nineBrushesOfThePaletteAreSetAndNoOther()
    {
        const QMap<QPair<int, int>, QString> set{
            {{QPalette::Active, QPalette::Highlight}, str("#555555")},
            {{QPalette::Inactive, QPalette::Highlight}, str("#dddddd")},
            {{QPalette::Disabled, QPalette::Highlight}, str("#7d4040")},
            {{QPalette::Active, QPalette::Window}, str("#fafafa")},
            {{QPalette::Inactive, QPalette::Window}, str("#f2f2f2")},
            {{QPalette::Active, QPalette::Button}, str("#fafafa")},
            {{QPalette::Inactive, QPalette::Button}, str("#f2f2f2")},
            {{QPalette::Disabled, QPalette::Button}, str("#d8d8d8")},
            {{QPalette::Active, QPalette::Link}, str("#5a8026")},
        };
        QApplication::setPalette(QPalette());
        qApp->setStyleSheet(QString());
        const QPalette before = QApplication::palette();
        VisualStyle::apply();
        const QPalette after = QApplication::palette();
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (int role = 0; role < QPalette::NColorRoles; ++role) {
                if (role == QPalette::NoRole)
                    continue;
                const QBrush brush = after.brush(group, QPalette::ColorRole(role));
                if (set.contains({group, role})) {
                    QCOMPARE(brush.color().name(), set.value({group, role}));
                    QCOMPARE(brush.style(), Qt::SolidPattern);
                } else {
                    QCOMPARE(brush, before.brush(group, QPalette::ColorRole(role)));
                }
            }
        }
    }
};

QTEST_MAIN(TestVisualStyle)
#include "tst_visualstyle.moc"
