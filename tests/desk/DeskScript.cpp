#include "desk/DeskScript.h"

#include <QKeySequence>
#include <QRegularExpression>
#include <QTest>
#include <QTextStream>
#include <utility>
#include <vector>

#include "platform/forms/Choice.h"
#include "platform/forms/TextBox.h"
#include "platform/print/PdfText.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "platform/sheet/SheetReader.h"
#include "store/Settings.h"
#include "support/ListScreen.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"
#include "toolkit/FieldWalk.h"

namespace akarix {
namespace {

struct Step {
    int line = 0;
    QString verb;
    QString rest;
    QStringList rows;
    QStringList dialogs;
    QString focus;  ///< where the keyboard is then; none: not asked
};

struct Case {
    QString name;
    int line = 0;
    std::vector<Step> steps;
};

[[noreturn]] void wrong(const QString& what) {
    throw std::runtime_error(what.toStdString());
}

QString FirstWord(const QString& text) {
    return text.section(u' ', 0, 0);
}
QString AfterFirst(const QString& text) {
    return text.section(u' ', 1);
}

std::vector<Case> ReadCases(const QString& path) {
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) return {};
    std::vector<Case> cases{{}};
    QTextStream in(&file);
    for (int number = 1; !in.atEnd(); ++number) {
        const QString line = in.readLine();
        std::vector<Step>& steps = cases.back().steps;
        if (line.trimmed().isEmpty() || line.startsWith(u'#')) continue;
        if (line.startsWith(u"== ")) {
            cases.push_back({line.mid(3), number, cases.front().steps});
        } else if (line.startsWith(u": ")) {
            steps.back().rows += line.mid(2);
        } else {
            QStringList rows = line.section(u" -> "_s, 0, 0).split(u" : "_s);
            QStringList focus = rows.takeFirst().split(u" @ "_s);
            QStringList dialogs = focus.takeFirst().split(u" > "_s);
            const QString step = dialogs.takeFirst();
            steps.push_back({number, FirstWord(step), AfterFirst(step), rows, dialogs, focus.value(0)});
            const QString shown = line.section(u" -> "_s, 1);
            if (!shown.isEmpty()) steps.push_back({number, u"shows"_s, shown, {}, {}, {}});
        }
    }
    cases.erase(cases.begin());
    return cases;
}

/// "a(0-2)+b" as its names.
QStringList NamesIn(const QString& text) {
    static const QRegularExpression range(u"^(.+)\\((\\d+)-(\\d+)\\)$"_s);
    QStringList names;
    for (const QString& name : text.split(u'+')) {
        const QRegularExpressionMatch found = range.match(name);
        if (!found.hasMatch()) {
            names += name;
            continue;
        }
        for (int i = found.captured(2).toInt(); i <= found.captured(3).toInt(); ++i)
            names += u"%1(%2)"_s.arg(found.captured(1)).arg(i);
    }
    return names;
}

std::pair<int, int> PlaceIn(const QString& text) {
    return {text.section(u',', 0, 0).toInt(), text.section(u',', 1).toInt()};
}

class DeskTest : public ScreenTest {
 public:
    DeskTest(QByteArray file, Case test, const DeskOpeners& openers)
        : file_(std::move(file)), case_(std::move(test)), openers_(openers) {}

 private:
    void TestBody() override {
        for (const Step& step : case_.steps) {
            step_ = &step;
            try {
                const qsizetype heard = clerk.said().size();
                prepareDialogs();
                perform();
                checkDialogs(heard);
                if (!step.focus.isEmpty()) focus(step.focus);
            } catch (const std::exception& error) {
                ADD_FAILURE_AT(file_.constData(), step.line) << error.what();
            }
        }
    }

    void expect(const QString& found, const QString& wanted) const {
        if (found == wanted) return;
        ADD_FAILURE_AT(file_.constData(), step_->line)
            << step_->verb.toStdString() << ' ' << step_->rest.toStdString() << "\nFound:\n"
            << found.toStdString() << "\nWanted:\n"
            << wanted.toStdString();
    }
    void expectRows(const QStringList& found) const { expect(found.join(u'\n'), step_->rows.join(u'\n')); }

    // ---- dialogs

    void prepareDialogs() {
        for (const QString& dialog : step_->dialogs) {
            const QString kind = FirstWord(dialog);
            const QString rest = AfterFirst(dialog);
            if (kind == u"alert") {
                clerk.answerAlert();
            } else if (kind == u"error") {
                clerk.answerMsgBox();
            } else if (kind == u"yes" || kind == u"no") {
                clerk.answerConfirm(kind == u"yes");
            } else if (kind == u"first" || kind == u"second") {
                clerk.answerConfirmRev(kind == u"first");
            } else if (kind == u"pick") {
                clerk.expect(FirstWord(rest), [this, rest](QWidget&) { pick(rest); });
            } else if (kind == u"save") {
                AnswerSaveAs(clerk, store_.path(rest));
            } else if (kind == u"paper") {
                AnswerPrinter(clerk, store_.path(rest));
            } else if (kind == u"escape") {
                AnswerEscape(clerk, rest);
            } else if (kind == u"page") {
                clerk.expect(u"Preview_frm"_s, [this, rest](QWidget&) {
                    expect(clerk.text(u"Place"_s), rest.section(u'|', 0, 0));
                    clerk.click(rest.section(u'|', 1));
                });
            } else if (kind == u"close") {
                clerk.expect(rest, [this](QWidget& shown) { clerk.closeBox(shown); });
            } else {
                wrong(u"no such dialog: "_s + dialog);
            }
        }
    }
    void pick(const QString& dialogAndCell) {
        if (dialogAndCell.startsWith(u"HelpDeal_frm")) clerk.click(u"Btn(0)"_s);
        const auto [row, col] = PlaceIn(AfterFirst(dialogAndCell));
        clerk.clickCell(clerk.find<FlexGrid>(u"List"_s), row, col);
    }
    static inline const QStringList kSilent =
        u"pick save paper escape page close"_s.split(u' ');  ///< the step's answer alone counts
    void checkDialogs(qsizetype heard) const {
        QStringList found;
        QStringList wanted;
        for (const QString& dialog : step_->dialogs) {
            const QString kind = FirstWord(dialog);
            QString said = clerk.said().value(heard++, u"(no dialog)"_s);
            if (kSilent.contains(kind)) continue;
            const bool error = kind == u"error";
            wanted += error ? u"実行時エラー '%1'"_s.arg(AfterFirst(dialog)) : AfterFirst(dialog);
            found += error ? said.left(wanted.last().size()) : said;
        }
        expect(found.join(u'\n'), wanted.join(u'\n'));
    }

    // ---- steps

    void perform() {
        using Doing = void (DeskTest::*)(const QString&);
        static const std::map<QString, Doing> doings{
            {u"today"_s, &DeskTest::setToday},
            {u"sql"_s, &DeskTest::runSql},
            {u"view"_s, &DeskTest::define},
            {u"fields"_s, &DeskTest::define},
            {u"open"_s, &DeskTest::open},
            {u"type"_s, &DeskTest::type},
            {u"in"_s, &DeskTest::typeIn},
            {u"put"_s, &DeskTest::put},
            {u"keys"_s, &DeskTest::keys},
            {u"press"_s, &DeskTest::press},
            {u"click"_s, &DeskTest::click},
            {u"cell"_s, &DeskTest::clickCell},
            {u"focus"_s, &DeskTest::focus},
            {u"shows"_s, &DeskTest::shows},
            {u"rows"_s, &DeskTest::rows},
            {u"grid"_s, &DeskTest::wholeGrid},
            {u"row"_s, &DeskTest::gridRow},
            {u"at"_s, &DeskTest::cursor},
            {u"count"_s, &DeskTest::countRows},
            {u"hidden"_s, &DeskTest::hidden},
            {u"visible"_s, &DeskTest::visible},
            {u"closed"_s, &DeskTest::closed},
            {u"sheet"_s, &DeskTest::sheetShows},
            {u"double"_s, &DeskTest::doubleClick},
            {u"close"_s, &DeskTest::closeBox},
            {u"paper"_s, &DeskTest::paperShows},
            {u"templates"_s, &DeskTest::linkTemplates},
        };
        const auto doing = doings.find(step_->verb);
        if (doing == doings.end()) wrong(u"nobody knows how to "_s + step_->verb);
        (this->*doing->second)(step_->rest);
    }

    void setToday(const QString& date) { SetClock(CDate(date)); }
    void linkTemplates(const QString& wanted) {
        gPrintPreview = wanted == u"shown";
        QFile::remove(store_.path(u"Prt"_s));
        if (wanted != u"gone") QFile::link(QStringLiteral(AKARIX_SOURCE_DIR "/Prt"), store_.path(u"Prt"_s));
    }
    void runSql(const QString& statement) { ScratchStore::run(statement); }
    void define(const QString& nameAndMeaning) {
        names_[FirstWord(nameAndMeaning)] = AfterFirst(nameAndMeaning);
    }
    void open(const QString& nameAndArgument) {
        const auto opener = openers_.find(FirstWord(nameAndArgument));
        if (opener == openers_.end()) wrong(u"nobody knows how to open "_s + nameAndArgument);
        opener->second(AfterFirst(nameAndArgument));
        clerk.settle();
    }

    void type(const QString& texts) {
        for (const QString& text : texts.split(u'|')) {
            if (text == u"DEL") clerk.press(Qt::Key_Delete);
            clerk.fill(text == u"DEL" ? QString() : text);
        }
    }
    void typeIn(const QString& nameAndTexts) {
        QWidget& control = clerk.control(FirstWord(nameAndTexts));
        if (auto* box = qobject_cast<TextBox*>(&control))
            FocusSelect(*box);
        else
            control.setFocus();
        if (nameAndTexts.contains(u' ')) type(AfterFirst(nameAndTexts));
    }
    void put(const QString& nameAndText) {
        const QStringList texts = AfterFirst(nameAndText).split(u'|');
        qsizetype next = 0;
        for (const QString& name : NamesIn(FirstWord(nameAndText)))
            clerk.find<TextBox>(name).SetText(texts.value(next++));
    }
    void keys(const QString& text) { clerk.type(text); }
    void press(const QString& keys) {
        for (const QString& key : keys.split(u' ')) {
            const QKeyCombination combination = QKeySequence(key)[0];
            clerk.press(combination.key(), combination.keyboardModifiers());
        }
    }
    void click(const QString& name) { clerk.click(name); }
    void closeBox(const QString& form) { clerk.closeBox(clerk.form(form)); }
    void doubleClick(const QString& name) { clerk.doubleClick(name); }
    void clickCell(const QString& gridCellAndTexts) {
        const auto [row, col] = PlaceIn(gridCellAndTexts.section(u' ', 1, 1));
        clerk.clickCell(grid(gridCellAndTexts), row, col);
        if (gridCellAndTexts.count(u' ') > 1) type(gridCellAndTexts.section(u' ', 2));
    }

    // ---- what is seen

    void focus(const QString& name) { expect(clerk.focusedName(), name); }
    void shows(const QString& namesAndTexts) {
        const QString names = FirstWord(namesAndTexts);
        const auto known = names_.find(names);
        QStringList texts;
        for (const QString& name : NamesIn(known == names_.end() ? names : known->second))
            texts += shown(name);
        expect(texts.join(u'|'), AfterFirst(namesAndTexts));
    }
    QString shown(const QString& name) const {
        // It waits until a window has the keyboard.
        if (name == u"Notice"_s) (void)QTest::qWaitFor([this] { return clerk.isOpen("Notice"); }, 1000);
        const QWidget& control = clerk.control(name);
        if (const auto* tick = qobject_cast<const CheckBox*>(&control)) return QString::number(tick->Value());
        if (const auto* choice = qobject_cast<const OptionButton*>(&control))
            return choice->Value() ? u"1"_s : u"0"_s;
        return clerk.text(name);
    }
    void rows(const QString& question) {
        const auto view = names_.find(FirstWord(question));
        if (view == names_.end()) return expectRows(ScratchStore::rows(question));
        const bool asksFor = view->second.contains(u"%1"_s);
        expectRows(ScratchStore::rows(asksFor ? view->second.arg(AfterFirst(question)) : view->second));
    }

    FlexGrid& grid(const QString& text) const { return clerk.find<FlexGrid>(FirstWord(text)); }
    /// First and last of the columns "2-4" or "3"; nothing are all.
    static std::pair<int, int> columnsIn(const QString& text) {
        if (text.isEmpty()) return {0, -1};
        return {text.section(u'-', 0, 0).toInt(), text.section(u'-', -1).toInt()};
    }
    void wholeGrid(const QString& gridAndColumns) {
        const auto [first, last] = columnsIn(AfterFirst(gridAndColumns));
        expectRows(GridRows(grid(gridAndColumns), first, last));
    }
    void gridRow(const QString& text) {
        const auto [first, last] = columnsIn(text.section(u' ', 2, 2));
        expect(GridRow(grid(text), text.section(u' ', 1, 1).toInt(), first, last), text.section(u' ', 3));
    }
    void cursor(const QString& gridAndCell) {
        const FlexGrid& list = grid(gridAndCell);
        expect(u"%1,%2"_s.arg(list.Row()).arg(list.Col()), AfterFirst(gridAndCell));
    }
    void countRows(const QString& gridAndCount) {
        expect(QString::number(grid(gridAndCount).Rows() - 1), AfterFirst(gridAndCount));
    }
    void hidden(const QString& name) { EXPECT_FALSE(clerk.control(name).isVisible()) << name.toStdString(); }
    void visible(const QString& name) { EXPECT_TRUE(clerk.control(name).isVisible()) << name.toStdString(); }
    void closed(const QString& form) { EXPECT_FALSE(clerk.isOpen(form)) << form.toStdString(); }
    void sheetShows(const QString& fileAndCells) {
        const Sheet sheet = ReadSheet(store_.path(FirstWord(fileAndCells)), u"Sheet1"_s);
        QStringList found;
        for (const QString& cell : AfterFirst(fileAndCells).split(u' ')) {
            const auto [row, col] = PlaceIn(cell);
            found += sheet.shownText({row, col}).trimmed();
        }
        expectRows(found);
    }
    void paperShows(const QString& name) {
        clerk.settle();  // what a broken run has printed goes out when the screen waits again
        const QString path = store_.path(name);
        const QStringList pages = QFile::exists(path) ? PdfPages(path) : QStringList();
        QFile::remove(path);
        expect(QString::number(pages.size()), QString::number(step_->rows.size()));
        for (qsizetype page = 0; page < std::min(pages.size(), step_->rows.size()); ++page) {
            for (const QString& text : step_->rows[page].split(u'|')) {
                const bool unwanted = text.startsWith(u'!');
                if (pages[page].contains(text.mid(unwanted ? 1 : 0)) == unwanted) expect(pages[page], text);
            }
        }
    }

    QByteArray file_;
    Case case_;
    const DeskOpeners& openers_;
    const Step* step_ = nullptr;
    std::map<QString, QString> names_;
    ScratchStore store_;
};

}  // namespace

bool RegisterDeskScripts(const QString& folder, DeskOpeners openers) {
    static const DeskOpeners known = std::move(openers);
    const QDir scripts(folder, u"*.desk"_s);
    for (const QFileInfo& script : scripts.entryInfoList()) {
        const QByteArray path = script.filePath().toUtf8();
        for (const Case& test : ReadCases(script.filePath())) {
            testing::RegisterTest(script.baseName().toUtf8(), test.name.toUtf8(), nullptr, nullptr, path,
                                  test.line,
                                  [path, test]() -> ScreenTest* { return new DeskTest(path, test, known); });
        }
    }
    return !scripts.isEmpty();
}

}  // namespace akarix
