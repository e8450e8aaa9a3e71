#include "configuration.h"
#include "tests/ui/uitest.h"
#include "ui/dialogoptions.h"
#include "ui/faderwidget.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QListWidget>
#include <QMessageBox>
#include <QMetaMethod>
#include <QNetworkProxy>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeWidget>

class TestDialogOptions final : public UiTest
{
    Q_OBJECT

    std::unique_ptr<DialogOptions> m_dialog;
    QList<QUrl> m_opened;

    template<typename Widget>
    Widget *widget(const char *name) const
    {
        return m_dialog->findChild<Widget *>(str(name));
    }

    void makeDialog() { m_dialog = std::make_unique<DialogOptions>(nullptr, Qt::Dialog); }

    void showDialog()
    {
        makeDialog();
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    }

    QList<FaderWidget *> faders() const { return m_dialog->findChildren<FaderWidget *>(); }

public Q_SLOTS:
    void openUrl(const QUrl &url) { m_opened << url; }

private Q_SLOTS:
    void cleanup()
    {
        m_dialog.reset();
        m_opened.clear();
    }

    void theSlotsHaveTheirOrder()
    {
        const QMetaObject &meta = DialogOptions::staticMetaObject;
        const QList<QByteArray> expected{"retranslate()", "on_pushButtonUpdate_clicked()", "showRestartHint()",
                                         "on_textBrowser_anchorClicked(QUrl)", "fadeInWidget(int)"};
        QCOMPARE(meta.methodCount() - meta.methodOffset(), expected.size());
        for (int i = 0; i < expected.size(); ++i)
            QCOMPARE(meta.method(meta.methodOffset() + i).methodSignature(), expected.at(i));
    }

    void itOpensOnTheFirstPageWithoutAFade()
    {
        showDialog();
        QCOMPARE(widget<QListWidget>("listWidget")->currentRow(), 0);
        QCOMPARE(widget<QStackedWidget>("stackedWidget")->currentIndex(), 0);
        QVERIFY(faders().isEmpty());
        QVERIFY(!(m_dialog->windowFlags() & Qt::WindowContextHelpButtonHint));
        QCOMPARE(m_dialog->windowTitle(), str("Settings"));
    }

    void anotherPageFadesIn()
    {
        showDialog();
        widget<QListWidget>("listWidget")->setCurrentRow(2);
        QCOMPARE(widget<QStackedWidget>("stackedWidget")->currentIndex(), 2);
        QCOMPARE(faders().size(), 1);
        const QPointer<FaderWidget> fader = faders().first();
        QCOMPARE(fader->parentWidget(), widget<QStackedWidget>("stackedWidget")->widget(2));
        QCOMPARE(fader->size(), fader->parentWidget()->size());
        QVERIFY(fader->isVisible());
        QTRY_VERIFY(!fader);
    }

    void aSecondPageChangeEndsTheFirstFade()
    {
        showDialog();
        widget<QListWidget>("listWidget")->setCurrentRow(1);
        const QPointer<FaderWidget> first = faders().first();
        widget<QListWidget>("listWidget")->setCurrentRow(2);
        QVERIFY(!first || first->isHidden());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QTRY_VERIFY(!first);
        QCOMPARE(faders().size(), 1);
    }

    void theBoxesShowTheSettings_data()
    {
        QTest::addColumn<bool>("value");
        QTest::newRow("true") << true;
        QTest::newRow("false") << false;
    }

    void theBoxesShowTheSettings()
    {
        QFETCH(bool, value);
        for (const SettingKey key : {DisableSplashScreen, VersionCheckAuto, WindowRestoreLayout, WindowRestoreGeometry})
            setSetting(key, value);
        makeDialog();
        for (const char *name :
             {"checkBoxDisableSplash", "checkBoxFinal", "checkBoxRestoreLayout", "checkBoxRestorePosition"})
            QCOMPARE(widget<QCheckBox>(name)->isChecked(), value);
    }

    void withoutSettingsTheBoxesShowTheDefaults()
    {
        makeDialog();
        QVERIFY(widget<QCheckBox>("checkBoxFinal")->isChecked());
        for (const char *name : {"checkBoxDisableSplash", "checkBoxRestoreLayout", "checkBoxRestorePosition"})
            QVERIFY(!widget<QCheckBox>(name)->isChecked());
    }

    void theBoxesAreWrittenWhenTheDialogGoesAndNoEarlier()
    {
        const QList<QPair<const char *, SettingKey>> boxes{{"checkBoxDisableSplash", DisableSplashScreen},
                                                           {"checkBoxFinal", VersionCheckAuto},
                                                           {"checkBoxRestoreLayout", WindowRestoreLayout},
                                                           {"checkBoxRestorePosition", WindowRestoreGeometry}};
        makeDialog();
        QStringList expected;
        for (const auto &box : boxes) {
            widget<QCheckBox>(box.first)->toggle();
            expected << (widget<QCheckBox>(box.first)->isChecked() ? str("true") : str("false"));
            QVERIFY(!setting(box.second).isValid());
        }
        m_dialog->reject(); // there is no Cancel
        m_dialog.reset();
        QStringList written;
        for (const auto &box : boxes)
            written << setting(box.second).toString();
        QCOMPARE(written, expected);
        QCOMPARE(written, (QStringList{str("true"), str("false"), str("true"), str("true")}));
    }

    void theSettingsAreWrittenInTheirOrder()
    {
        makeDialog();
        m_dialog.reset();
        AppSettings::instance().save();
        QFile file(str("config/global.xml"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll();
        QVERIFY(content.indexOf("<DisableSplashScreen>") < content.indexOf("<RestoreLayout>"));
        QVERIFY(content.indexOf("<RestoreLayout>") < content.indexOf("<RestoreGeometry>"));
        QVERIFY(content.indexOf("<RestoreGeometry>") < content.indexOf("<Auto>"));
    }

    void makingItStoresNoLanguage()
    {
        makeDialog();
        m_dialog.reset();
        QVERIFY(!setting(Language).isValid());
    }

    void anotherLanguageTakesEffectAtOnce()
    {
        showDialog();
        auto *tree = widget<QTreeWidget>("listLocale");
        QCOMPARE(tree->topLevelItemCount(), 2);
        QCOMPARE(tree->currentItem()->text(0), str("en_UK"));
        const QString about = widget<QTextBrowser>("textBrowser")->toHtml();
        tree->setCurrentItem(tree->findItems(str("de_DE"), Qt::MatchExactly, 0).first());
        QCOMPARE(setting(Language).toString(), str("de_DE"));
        QTRY_COMPARE(m_dialog->windowTitle(), str("Einstellungen"));
        QCOMPARE(widget<QCheckBox>("checkBoxFinal")->text(), str("Automatisch nach neuen Versionen suchen "));
        QCOMPARE(widget<QPushButton>("pushButton")->text(), str("Schließen"));
        QCOMPARE(tree->headerItem()->text(1), str("Sprache"));
        QCOMPARE(widget<QListWidget>("listWidget")->item(0)->text(), str("Allgemein"));
        QCOMPARE(widget<QTextBrowser>("textBrowser")->toHtml(), about);
        tree->setCurrentItem(tree->findItems(str("en_UK"), Qt::MatchExactly, 0).first());
        QTRY_COMPARE(m_dialog->windowTitle(), str("Settings"));
    }

    void theAboutTextIsPutTogetherAsItMustBe()
    {
        makeDialog();
        const QString web = QString::fromLatin1(Configuration::webAddress);
        const auto link = [&web](const char *label, const char *path) {
            return str("%1<a href='%2'>%2</a><br/>").arg(str(label), web + str(path));
        };
        QTextDocument expected;
        expected.setDefaultFont(widget<QTextBrowser>("textBrowser")->document()->defaultFont());
        expected.setHtml(str("<div style='margin:4px;font-weight:bold'><h3>Orvanta</h3><p style='margin-top:0;'><span "
                             "style='color:#666'>Version: </span>1.1.6.2</p><p><span style='color:#333'>OS Support"
                             "</span><br/>Windows 2000, XP, 2003, 2008, Vista, 7</p><p><span style='color:#333'>Links"
                             "</span><br/>") +
                         link("Home: ", "") + link("FAQ: ", "/products/brimtale/faq") + link("Feedback: ", "/contact") +
                         str("<p><span style='color:#333'>© 2026 Kelvory<br/>") +
                         QString::fromUtf8(Configuration::credit) + str("</span></p></div>"));
        QCOMPARE(widget<QTextBrowser>("textBrowser")->toHtml(), expected.toHtml());
    }

    void everyLinkIsOpenedExactlyOnce()
    {
        for (const char *scheme : {"http", "https", "file", "mailto"})
            QDesktopServices::setUrlHandler(str(scheme), this, "openUrl");
        showDialog();
        auto *browser = widget<QTextBrowser>("textBrowser");
        const QUrl web(str("http://www.kelvory.example/contact"));
        Q_EMIT browser->anchorClicked(web);
        QCOMPARE(m_opened, QList<QUrl>{web});

        // The click itself, on the first link.
        m_opened.clear();
        widget<QListWidget>("listWidget")->setCurrentRow(2);
        QTextCursor cursor = browser->document()->find(QString::fromLatin1(Configuration::webAddress));
        cursor.setPosition(cursor.selectionStart() + 5);
        QTRY_VERIFY(faders().isEmpty());
        QTest::mouseClick(browser->viewport(), Qt::LeftButton, {}, browser->cursorRect(cursor).center());
        QCOMPARE(m_opened, QList<QUrl>{QUrl(QString::fromLatin1(Configuration::webAddress))});
        for (const char *scheme : {"http", "https", "file", "mailto"})
            QDesktopServices::unsetUrlHandler(str(scheme));
    }

    void aLinkOfAnotherSchemeIsALocalPath()
    {
        QDesktopServices::setUrlHandler(str("file"), this, "openUrl");
        makeDialog();
        QVERIFY(QDir().mkpath(path(str("folder"))));
        m_dialog->on_textBrowser_anchorClicked(QUrl(str("https://host") + path(str("folder/../folder"))));
        QCOMPARE(m_opened, QList<QUrl>{QUrl::fromLocalFile(QDir(path(str("folder"))).canonicalPath())});
        m_dialog->on_textBrowser_anchorClicked(QUrl(str("https://host/no/such/folder")));
        QCOMPARE(m_opened.size(), 1);
        QDesktopServices::unsetUrlHandler(str("file"));
    }

    void theRestartHintIsABox()
    {
        makeDialog();
        QStringList seen;
        QTimer::singleShot(200, this, [&seen] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            seen << box->windowTitle() << box->text() << QString::number(box->icon());
            box->accept();
        });
        m_dialog->showRestartHint();
        QCOMPARE(seen, (QStringList{str("Orvanta"), str("Restart the application so the setting can take effect."),
                                    QString::number(QMessageBox::Information)}));
    }

    void everyClickOnCheckNowIsACheckOfItsOwn()
    {
        QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::HttpProxy, str("127.0.0.1"), 1));
        makeDialog();
        for (int i = 0; i < 3; ++i)
            widget<QPushButton>("pushButtonUpdate")->click();
        int checks = 0;
        const auto children = m_dialog->children();
        for (const QObject *child : children)
            checks += child->inherits("VersionCheck") ? 1 : 0;
        QCOMPARE(checks, 3);
        m_dialog.reset();
        QTest::qWait(100);
        QVERIFY(!QApplication::activeModalWidget());
        QNetworkProxy::setApplicationProxy(QNetworkProxy());
    }

    void closeCloses()
    {
        showDialog();
        widget<QPushButton>("pushButton")->click();
        QVERIFY(m_dialog->isHidden());
    }

    void aLongLanguageIsNotCut()
    {
        // French has the longest labels.
        QFile::copy(QStringLiteral(ORVANTA_CATALOGUES "/orvanta-fr_FR.qm"),
                    QCoreApplication::applicationDirPath() + str("/locale/orvanta-fr_FR.qm"));
        LanguageManager::destroyInstance();
        LanguageManager::instance().loadLanguages();
        showDialog();
        QCOMPARE(m_dialog->size(), QSize(552, 340));
        LanguageManager::instance().selectLanguage(str("fr_FR"));
        QTRY_COMPARE(m_dialog->windowTitle(), str("Paramètres"));
        QCoreApplication::processEvents();
        const auto boxes = m_dialog->findChildren<QCheckBox *>();
        for (const QCheckBox *box : boxes)
            QVERIFY2(box->width() >= box->sizeHint().width(),
                     qPrintable(str("%1: %2 of %3").arg(box->text()).arg(box->width()).arg(box->sizeHint().width())));
    }
};

QTEST_MAIN(TestDialogOptions)
#include "tst_dialogoptions.moc"
