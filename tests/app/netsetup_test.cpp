// Language Settings, the network or lab setup written to the program-level
// settings file, the reference book, and the import command that stays
// unavailable with its reason.
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTextDocument>

#include "app/book_window.h"
#include "app/help_window.h"
#include "app/language_dialog.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"
#include "app_fixture.h"
#include "session/analysis_session.h"

namespace tavi::app::test {
namespace {

QString fileText(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

class NetSetupTest : public AppTest {
protected:
    // The program-level file of this test, in place of the shared data folder's.
    QString useProgramFile(const QString& path) {
        app->settings().programSettingsFile = path.toStdString();
        return path;
    }
};

TEST_F(NetSetupTest, LanguageSettingsSaveTheirLinesAndTheCheckerFollowsTheDates) {
    whenModal([this](QWidget* w) {
        auto* dialog = qobject_cast<CLanguageDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), "Language Settings");
        dialog->findChild<QRadioButton*>("dayFirst")->setChecked(true);
        dialog->findChild<QComboBox*>("dateSeparator")->setCurrentText("/");
        dialog->findChild<QRadioButton*>("encodingWindows1252")->setChecked(true);
        dialog->findChild<QComboBox*>("reportSlot")->setCurrentIndex(3);
        dialog->findChild<QLineEdit*>("otherName")->setText("Gaeilge");
        // The root identification files of two slots: each slot keeps its own.
        dialog->findChild<QComboBox*>("rifSlot")->setCurrentIndex(1);
        dialog->findChild<QLineEdit*>("rif2")->setText("/data/rif/alt.rif");
        dialog->findChild<QComboBox*>("rifSlot")->setCurrentIndex(0);
        EXPECT_EQ(dialog->findChild<QLineEdit*>("rif2")->text(), "");
        dialog->findChild<QLineEdit*>("rif1")->setText("/data/rif/main.rif");
        pressOnMessage("Yes");
        pressOnMessage("OK");
        dialog->saveDefaultButton()->click();
        QTimer::singleShot(100, dialog, [dialog] { dialog->accept(); });
    });
    run("ID_SETUP_LANGUAGE");
    settle();
    ASSERT_EQ(messages.size(), 2);
    EXPECT_EQ(messages[0], "Would you like to save these settings as the program default?");
    const QString saved = fileText(QString::fromStdString(app->settings().userSettingsFile()));
    EXPECT_TRUE(saved.startsWith(QString::fromUtf8("\xEF\xBB\xBF") + "LANGUAGE UCPRIMARY_"))
        << saved.toStdString();
    for (const char* line :
         {"LANGUAGE RIF1PRIMARY /data/rif/main.rif\n", "LANGUAGE RIF2ALT1 /data/rif/alt.rif\n",
          "LANGUAGE OTHERNAME Gaeilge\n", "LANGUAGE DATEDM\n", "LANGUAGE DATESEP /\n",
          "LANGUAGE RLABELS OTHER\n", "LANGUAGE ENCODING WINDOWS-1252\n"})
        EXPECT_TRUE(saved.contains(QString::fromLatin1(line))) << line << "\n"
                                                               << saved.toStdString();

    const LanguageSettings& language = app->settings().language;
    EXPECT_FALSE(language.monthFirst);
    EXPECT_EQ(language.dateSeparator, '/');
    EXPECT_EQ(language.textEncoding, TextEncoding::Windows1252);
    EXPECT_EQ(language.reportSlot(), LanguageSlot::Other);

    // The checker reads day-first dates now.
    const TranscriptAnalysis dated =
        analyseText("$ Child, Examiner\n+ DOB: 14/3/2020\n+ DOE: 20/5/2025\nC hi.\nE ok.\n",
                    app->analysisContext());
    EXPECT_EQ(dated.check.ageMonths, 62);

    // A transcript saved without a byte order mark is opened as Windows-1252.
    const QString legacy = tempPath("legacy.tvi");
    QFile out(legacy);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write("$ Zo\xC3\xAB, Examiner\nC hi.\n");
    out.close();
    CTAVIDoc doc(*app, 0);
    QString error;
    ASSERT_TRUE(doc.load(legacy, error)) << error.toStdString();
    EXPECT_TRUE(doc.document()->toPlainText().startsWith(QStringLiteral("$ Zo\u00C3\u00AB,")))
        << doc.document()->toPlainText().toStdString();
}

TEST_F(NetSetupTest, NetworkFoldersFontsAndClientOptionsAreWrittenForEveryUser) {
    // Without a configuration folder the program-level file is the shared data folder's.
    EXPECT_EQ(app->settings().programSettingsFile,
              app->settings().folders.sharedData + "TAVI_SYS.ini");
    const QString sys = useProgramFile(tempPath("TAVI_SYS.ini"));
    {
        QFile f(sys);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("CUSTOMIZEPROMPT YES\nTRANDIR old\nLISTDIR lists\n");
    }
    const QString folder = tempPath("lab-transcripts");
    QDir().mkpath(folder);
    chooseFile(folder);
    pressOnMessage("Yes");
    pressOnMessage("OK");
    run("ID_NETLOC_TRAN");
    settle();
    ASSERT_EQ(messages.size(), 2);
    EXPECT_EQ(messages[0], "Would you like to save these settings as the default for every "
                           "user of this computer?");
    EXPECT_EQ(messages[1], "Settings saved in " + sys);
    EXPECT_EQ(fileText(sys), QString::fromUtf8("\xEF\xBB\xBF") + "TRANDIR " + folder +
                                 "/\nCUSTOMIZEPROMPT YES\nLISTDIR lists\n");
    EXPECT_EQ(app->settings().folders.transcript, (folder + "/").toStdString());
    // The user's own file is not touched.
    EXPECT_FALSE(QFile::exists(QString::fromStdString(app->settings().userSettingsFile())));

    // Client options: users may no longer save defaults; their settings folder.
    messages.clear();
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<QDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), "Client Options");
        dialog->findChild<QCheckBox*>("customizePrompt")->setChecked(false);
        dialog->findChild<QLineEdit*>("iniDir")->setText("/srv/tavi/users");
        dialog->accept();
    });
    pressOnMessage("Yes");
    pressOnMessage("OK");
    run("ID_NET_CLIENT");
    settle();
    EXPECT_EQ(fileText(sys), QString::fromUtf8("\xEF\xBB\xBF") +
                                 "CUSTOMIZEPROMPT NO\nINIDIR /srv/tavi/users/\nTRANDIR " + folder +
                                 "/\nLISTDIR lists\n");
    EXPECT_FALSE(app->settings().canSaveDefaults());

    // The PDF printer.
    whenModal([](QWidget* w) {
        auto* dialog = qobject_cast<QInputDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        dialog->setTextValue("Lab PDF");
        dialog->accept();
    });
    pressOnMessage("Yes");
    pressOnMessage("OK");
    run("ID_NET_PDF");
    settle();
    EXPECT_TRUE(
        fileText(sys).contains("\nPDFPRINTERNAME Lab PDF\n") ||
        fileText(sys).startsWith(QString::fromUtf8("\xEF\xBB\xBF") + "PDFPRINTERNAME Lab PDF\n"));
    EXPECT_EQ(app->settings().pdfPrinterName, "Lab PDF");

    // A font for every user.
    whenModal([](QWidget* w) { qobject_cast<QDialog*>(w)->accept(); });
    pressOnMessage("Yes");
    pressOnMessage("OK");
    run("ID_NETFONT_DISPREPT");
    settle();
    EXPECT_TRUE(
        fileText(sys).startsWith(QString::fromUtf8("\xEF\xBB\xBF") + "DISPREPTFONT HEIGHT "))
        << fileText(sys).toStdString();
    EXPECT_TRUE(fileText(sys).contains("\nDISPREPTFONT FACENAME "));
}

TEST_F(NetSetupTest, AProgramFileThatCannotBeWrittenIsSaid) {
    // Its folder cannot exist: a file stands in its place, as /etc/tavi/ is
    // out of reach for a user who is no administrator.
    QFile blocker(tempPath("etc"));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    const QString sys = useProgramFile(tempPath("etc") + "/tavi/TAVI_SYS.ini");
    const QString folder = tempPath("backups");
    QDir().mkpath(folder);
    const std::string before = app->settings().folders.backup;
    chooseFile(folder);
    pressOnMessage("Yes");
    pressOnMessage("OK");
    run("ID_NETLOC_BACKUP");
    settle();
    ASSERT_EQ(messages.size(), 2);
    EXPECT_TRUE(messages[1].startsWith("Default settings cannot be saved on this computer.\n"))
        << messages[1].toStdString();
    EXPECT_TRUE(messages[1].contains(sys));
    EXPECT_TRUE(messages[1].contains("administrator"));
    EXPECT_EQ(app->settings().folders.backup, before);
}

TEST_F(NetSetupTest, TheReferenceBookHasContentsChaptersAndAnIndex) {
    run("ID_HELP_BOOK");
    QMdiSubWindow* window = frame->mdiArea().activeSubWindow();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->objectName(), "CBookFrame");
    auto* book = window->findChild<CBookWindow*>();
    ASSERT_NE(book, nullptr);
    const QString text = book->browser().document()->toPlainText();
    EXPECT_TRUE(text.startsWith("TAVI Reference Book")) << text.left(200).toStdString();
    const qsizetype contents = text.indexOf("Contents");
    const qsizetype start = text.indexOf("TAVI documentation", contents + 8);
    const qsizetype measures = text.indexOf("\nMeasures", start);
    const qsizetype index = text.lastIndexOf("\nIndex\n");
    EXPECT_GT(contents, 0);
    EXPECT_GT(start, contents);
    EXPECT_GT(measures, start);
    EXPECT_GT(index, measures);
    // Index entries link to named headings of the book.
    EXPECT_TRUE(text.indexOf("Transcribing for TAVI", index) > index ||
                text.indexOf("Measures: ", index) > index);
    EXPECT_TRUE(book->hasAnchor("contents"));
    EXPECT_TRUE(book->hasAnchor("tavi-documentation"));
    EXPECT_TRUE(book->hasAnchor("index"));
    // Every link of the contents, the index and between the documents leads
    // to a heading of the rendered book.
    const QString markdown = referenceBookMarkdown(QStringLiteral(TAVI_SOURCE_DATA_DIR "/../docs"));
    QStringList missing;
    int links = 0;
    for (qsizetype at = markdown.indexOf("](#"); at >= 0; at = markdown.indexOf("](#", at + 3)) {
        const QString name = markdown.mid(at + 3, markdown.indexOf(')', at) - at - 3);
        ++links;
        if (!book->hasAnchor(name) && !missing.contains(name))
            missing << name;
    }
    EXPECT_GT(links, 300);

    EXPECT_TRUE(missing.isEmpty()) << missing.join(", ").toStdString();

    // Saved as PDF.
    const QString pdf = tempPath("book.pdf");
    ASSERT_TRUE(book->saveAsPdf(pdf));
    QFile written(pdf);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_TRUE(written.read(5).startsWith("%PDF-"));
    EXPECT_GT(written.size(), 50000);
}

TEST_F(NetSetupTest, TheUnavailableImportSaysWhyAsTipAndInTheStatusBar) {
    QAction* cp = action("ID_FILE_IMPORT_CP");
    ASSERT_NE(cp, nullptr);
    EXPECT_FALSE(cp->isEnabled());
    const QString why = "Import a C&P CORPUS file (not available: no description of this format "
                        "exists)";
    EXPECT_EQ(cp->statusTip(), why);
    EXPECT_TRUE(cp->toolTip().contains("no description of this format exists"));
    QMenu* menu = nullptr;
    for (QObject* o : cp->associatedObjects())
        if (auto* m = qobject_cast<QMenu*>(o))
            menu = m;
    ASSERT_NE(menu, nullptr);
    menu->resize(menu->sizeHint());
    const QPointF at = menu->actionGeometry(cp).center();
    QMouseEvent move(QEvent::MouseMove, at, menu->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(menu, &move);
    EXPECT_EQ(frame->statusBar()->currentMessage(), why);
}

} // namespace
} // namespace tavi::app::test
