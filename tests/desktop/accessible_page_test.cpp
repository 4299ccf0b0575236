// What stands for each kind of control: names, actions, texts, items, cells.
#include "accessible_page.h"

namespace {

using screen::Kind;
using test_page::AccessiblePage;
using test_page::nameOf;
using test_page::Texts;

TEST_F(AccessiblePage, CaptionsAreToldWithoutTheirSigns)
{
    page_.add(Kind::commandButton, {100, 100, 1000, 300}, " &Abort ").accessKey = U'A';
    page_.add(Kind::label, {100, 500, 1000, 300}, " RCountry=");
    page_.add(Kind::label, {100, 900, 1000, 300}, "");
    page_.add(Kind::label, {100, 1300, 1000, 300}, "a  b :");
    show();
    ASSERT_EQ(root()->childCount(), 3) << "a label that says nothing is left out";
    EXPECT_EQ(nameOf(child(0)), "Abort");
    EXPECT_EQ(child(0)->text(QAccessible::Accelerator), "Alt+A");
    EXPECT_EQ(child(0)->actionInterface()->keyBindingsForAction(QAccessibleActionInterface::pressAction()),
              QStringList("Alt+A"));
    EXPECT_EQ(nameOf(child(1)), "RCountry");
    EXPECT_EQ(nameOf(child(2)), "a b");
}

TEST_F(AccessiblePage, ToolTipsAreDescriptionsButTheKeyIsNotSaidTwice)
{
    app::ControlPicture& box = page_.add(Kind::textBox, {100, 100, 1000, 300}, "x");
    box.toolTip = "Introdu codul receptionat";
    app::ControlPicture& button = page_.add(Kind::commandButton, {100, 500, 1000, 300}, "1&44");
    button.toolTip = "Alt+4";
    button.accessKey = U'4';
    show();
    EXPECT_EQ(child(0)->text(QAccessible::Description), "Introdu codul receptionat");
    EXPECT_EQ(child(1)->text(QAccessible::Description), "");
    EXPECT_EQ(child(1)->text(QAccessible::Accelerator), "Alt+4");
}

TEST_F(AccessiblePage, ActionsPostWhatThePointerPosts)
{
    const QString press = QAccessibleActionInterface::pressAction();
    const QString toggle = QAccessibleActionInterface::toggleAction();
    const QString focus = QAccessibleActionInterface::setFocusAction();
    page_.add(Kind::commandButton, {100, 100, 1000, 300}, "Button");
    page_.add(Kind::optionButton, {100, 500, 1000, 300}, "Option");
    page_.add(Kind::checkBox, {100, 900, 1000, 300}, "Check");
    page_.add(Kind::textBox, {100, 1300, 1000, 300}, "Text");
    page_.add(Kind::label, {100, 1700, 1000, 300}, "Label");
    page_.add(Kind::commandButton, {100, 2100, 1000, 300}, "Off").enabled = false;
    show();
    const QStringList wanted[] = {{press, focus}, {press, focus}, {toggle, focus}, {focus}, {}, {}};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(child(i)->actionInterface()->actionNames(), wanted[i]) << i;
    child(0)->actionInterface()->doAction(press);
    child(1)->actionInterface()->doAction(press);
    child(2)->actionInterface()->doAction(toggle);
    child(3)->actionInterface()->doAction(focus);
    child(3)->actionInterface()->doAction(press);
    child(4)->actionInterface()->doAction(press);
    child(5)->actionInterface()->doAction(press);
    EXPECT_EQ(posted(), Texts({"click 0", "click 1", "click 2", "focus 3"}));
}

TEST_F(AccessiblePage, FramesHoldTheirControls)
{
    app::ControlPicture& frame = page_.add(Kind::frame, {1000, 1000, 4000, 3000}, "BANDA");
    const screen::Control* holder = frame.control;
    page_.add(Kind::optionButton, {1200, 1400, 1000, 300}, "144 MHz").frame = holder;
    page_.add(Kind::optionButton, {1200, 1800, 1000, 300}, "432 MHz").frame = holder;
    page_.add(Kind::label, {100, 100, 500, 300}, "CALL");
    show();
    ASSERT_EQ(root()->childCount(), 2);
    ASSERT_EQ(child(0)->childCount(), 2);
    EXPECT_EQ(nameOf(child(0)->child(1)), "432 MHz");
    EXPECT_EQ(child(0)->child(1)->parent(), child(0));
    EXPECT_EQ(child(0)->child(5), nullptr);
    const QPoint at = child(0)->child(1)->rect().center();
    EXPECT_EQ(root()->childAt(at.x(), at.y()), child(0));
    EXPECT_EQ(child(0)->childAt(at.x(), at.y()), child(0)->child(1));
    EXPECT_EQ(root()->childAt(-5, -5), nullptr);
}

TEST_F(AccessiblePage, AControlThatIsGoneIsNoMoreValid)
{
    page_.add(Kind::commandButton, {100, 100, 1000, 300}, "one");
    page_.add(Kind::commandButton, {100, 500, 1000, 300}, "two");
    show();
    QAccessibleInterface* two = child(1);
    page_.picture().controls.pop_back();
    show();
    EXPECT_FALSE(two->isValid());
    EXPECT_TRUE(two->state().invisible);
    EXPECT_EQ(two->text(QAccessible::Name), "");
    EXPECT_EQ(two->actionInterface()->actionNames(), QStringList());
    EXPECT_EQ(root()->childCount(), 1);
}

TEST_F(AccessiblePage, TheFocusIsThatOfThePicture)
{
    page_.add(Kind::commandButton, {100, 100, 1000, 300}, "one");
    page_.add(Kind::textBox, {100, 500, 1000, 300}, "two").hasFocus = true;
    show();
    EXPECT_EQ(root()->focusChild(), child(1));
    EXPECT_TRUE(child(1)->state().focused);
    EXPECT_FALSE(child(0)->state().focused);
    view_.clearFocus();
    EXPECT_FALSE(child(1)->state().focused) << "a message box has it";
}

TEST_F(AccessiblePage, ATextBoxTellsTextCaretAndSelection)
{
    app::ControlPicture& box = page_.add(Kind::textBox, {100, 100, 3000, 400}, "YO\U0001F4FB2ABC");
    box.hasFocus = true;
    box.selStart = 2;
    box.selLength = 2;
    box.caret = 4;
    show();
    QAccessibleTextInterface* text = child(0)->textInterface();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->characterCount(), 8) << "the toolkit counts one of them twice";
    EXPECT_EQ(text->text(0, 8), QString::fromUtf8("YO\U0001F4FB2ABC"));
    EXPECT_EQ(text->text(5, 8), "ABC");
    EXPECT_EQ(text->cursorPosition(), 5);
    EXPECT_EQ(text->selectionCount(), 1);
    int start = 0;
    int end = 0;
    text->selection(0, &start, &end);
    EXPECT_EQ(start, 2);
    EXPECT_EQ(end, 5);
    EXPECT_TRUE(child(0)->state().editable);
    EXPECT_EQ(child(0)->text(QAccessible::Value), QString::fromUtf8("YO\U0001F4FB2ABC"));
    EXPECT_NE(nameOf(child(0)), "YO2ABC");

    const QRect second = text->characterRect(1);
    EXPECT_TRUE(child(0)->rect().contains(second));
    EXPECT_GT(second.left(), text->characterRect(0).left());
    EXPECT_EQ(text->offsetAtPoint({second.left() + 1, second.center().y()}), 1);
    EXPECT_EQ(text->offsetAtPoint({-1, -1}), -1);
}

TEST_F(AccessiblePage, CaretAndSelectionAreSetAsByThePointer)
{
    page_.add(Kind::textBox, {100, 100, 3000, 400}, "Y\U0001F4FB2ABC");
    page_.add(Kind::textBox, {100, 600, 3000, 400}, "off").enabled = false;
    show();
    child(0)->textInterface()->setCursorPosition(3);
    child(0)->textInterface()->setSelection(0, 1, 4);
    child(0)->textInterface()->removeSelection(0);
    child(1)->textInterface()->setCursorPosition(1);
    EXPECT_EQ(posted(), Texts({"caret 0 2", "caret 0 1", "extend 0 3"}));
}

TEST_F(AccessiblePage, AListHasItems)
{
    app::ControlPicture& list = page_.add(Kind::listBox, {100, 100, 2000, 1000});
    list.items = {"2320", "5760", "10368", "24192", "47088", "76000"};
    list.listIndex = 1;
    list.hasFocus = true;
    show();
    QAccessibleInterface* items = child(0);
    ASSERT_EQ(items->childCount(), 6);
    EXPECT_EQ(items->child(0)->role(), QAccessible::ListItem);
    EXPECT_EQ(nameOf(items->child(2)), "10368");
    EXPECT_TRUE(items->child(1)->state().selected);
    EXPECT_FALSE(items->child(0)->state().selected);
    EXPECT_EQ(root()->focusChild(), items->child(1));
    EXPECT_TRUE(items->child(5)->state().offscreen);
    const QRect first = items->child(0)->rect();
    EXPECT_TRUE(items->rect().contains(first));
    EXPECT_EQ(items->childAt(first.center().x(), first.center().y()), items->child(0));
    items->child(3)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(posted(), Texts({"item 0 3"}));

    QAccessibleInterface* last = items->child(5);
    page_.picture().controls[0].items.pop_back();
    show();
    EXPECT_FALSE(last->isValid());
    EXPECT_EQ(items->childCount(), 5);
    EXPECT_EQ(items->child(5), nullptr);
}

TEST_F(AccessiblePage, AGridIsATableOfTheRowsInView)
{
    page_.addGrid({100, 100, 6000, 3000}, 3, false, true);
    auto grid = std::make_shared<app::GridPicture>(*page_.picture().controls[0].grid);
    grid->currentKey = 2;
    page_.picture().controls[0].grid = grid;
    show();
    QAccessibleInterface* table = child(0);
    QAccessibleTableInterface* cells = table->tableInterface();
    ASSERT_NE(cells, nullptr);
    EXPECT_EQ(cells->columnCount(), 1) << "a column of no width is not seen";
    EXPECT_EQ(cells->rowCount(), 3);
    EXPECT_EQ(table->childCount(), 4);
    EXPECT_EQ(table->child(0)->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(nameOf(table->child(0)), "Call");
    EXPECT_EQ(cells->columnDescription(0), "Call");
    QAccessibleInterface* second = cells->cellAt(1, 0);
    EXPECT_EQ(second->role(), QAccessible::Cell);
    EXPECT_EQ(nameOf(second), "YO2ABC");
    EXPECT_EQ(second->tableCellInterface()->rowIndex(), 1);
    EXPECT_EQ(second->tableCellInterface()->columnIndex(), 0);
    EXPECT_EQ(second->tableCellInterface()->columnHeaderCells(), QList<QAccessibleInterface*>{table->child(0)});
    EXPECT_TRUE(second->tableCellInterface()->isSelected());
    EXPECT_EQ(cells->selectedRows(), QList<int>{1});
    EXPECT_EQ(cells->rowDescription(2), "YO3ABC");
    EXPECT_EQ(cells->cellAt(3, 0), nullptr);

    const QRect place = second->rect();
    EXPECT_TRUE(table->rect().contains(place));
    EXPECT_EQ(table->childAt(place.center().x(), place.center().y()), second);
    second->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(cells->selectRow(0));
    EXPECT_FALSE(cells->selectRow(7));
    EXPECT_EQ(posted(), Texts({"row 0 2", "row 0 1"}));
}

}  // namespace
