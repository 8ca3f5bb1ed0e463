#include "catalogs/editors/edit_memory.h"

#include "tests/catalogs/editors/editors_fixture.h"

namespace lv {

class EditMemory : public EditorsTest {
  protected:
    EditMemory() { lists.Mem_Cbo.Items = {Item("16 megabytes", "-winmem 16")}; }
};

TEST_F(EditMemory, BeginsWithItsRows) {
    const EditMem_Frm form(run, lists);
    EXPECT_EQ(form.Caption, "Edit Memory List");
    EXPECT_EQ(form.Label1[0].Caption, "Lowest available memory option is");
    EXPECT_EQ(form.Label1[1].Caption, "Available options are separated by ");
    EXPECT_EQ(form.Label1[2].Caption, "Highest available memory option is");
    EXPECT_EQ(form.Ram_Cbo[0].Items.front(), "8");
    EXPECT_EQ(form.Ram_Cbo[0].Items.back(), "32");
    EXPECT_EQ(form.Ram_Cbo[0].Selected(), "8");
    EXPECT_EQ(form.Ram_Cbo[1].Items.front(), "1");
    EXPECT_EQ(form.Ram_Cbo[1].Items.back(), "32");
    EXPECT_EQ(form.Ram_Cbo[1].Selected(), "4");
    EXPECT_EQ(form.Ram_Cbo[2].Items.front(), "8");
    EXPECT_EQ(form.Ram_Cbo[2].Items.back(), "128");
    EXPECT_EQ(form.Ram_Cbo[2].Selected(), "16");
    for (const Label& label : form.Label2) {
        EXPECT_EQ(label.Caption, "megabytes.");
    }
}

TEST_F(EditMemory, OneIsAMegabyte) {
    EditMem_Frm form(run, lists);
    form.Ram_Cbo[1].ListIndex = 0;
    EditMem_Ram_Cbo_Click(form, 1);
    EXPECT_EQ(form.Label2[1].Caption, "megabyte.");
    EXPECT_EQ(form.Label2[0].Caption, "megabytes.");
    form.Ram_Cbo[1].ListIndex = 1;
    EditMem_Ram_Cbo_Click(form, 1);
    EXPECT_EQ(form.Label2[1].Caption, "megabytes.");
}

TEST_F(EditMemory, MakesTheListAnew) {
    EditMem_Frm form(run, lists);
    EditMem_OK_Cmd_Click(form);
    EXPECT_EQ(Rows(lists.Mem_Cbo),
              (TextList{"8 Megabytes|-winmem 8", "12 Megabytes|-winmem 12", "16 Megabytes|-winmem 16"}));
    EXPECT_EQ(lists.Mem_Cbo.ListIndex, 0);
    EXPECT_EQ(Stored("Memory"), "8 Megabytes;-winmem 8;12 Megabytes;-winmem 12;16 Megabytes;-winmem 16");
    EXPECT_TRUE(form.Closed);
}

TEST_F(EditMemory, ALowestAboveTheHighestGivesAnEmptyList) {
    EditMem_Frm form(run, lists);
    form.Ram_Cbo[0].ListIndex = 24;  // 32
    EditMem_OK_Cmd_Click(form);
    EXPECT_TRUE(lists.Mem_Cbo.Items.empty());
    EXPECT_EQ(lists.Mem_Cbo.ListIndex, -1);
    EXPECT_EQ(Stored("Memory"), "");
    EXPECT_TRUE(form.Closed);
}

TEST_F(EditMemory, CancelChangesNothing) {
    EditMem_Frm form(run, lists);
    Entry_Cancel_Cmd_Click(form);
    EXPECT_EQ(Rows(lists.Mem_Cbo), (TextList{"16 megabytes|-winmem 16"}));
    EXPECT_EQ(Stored("Memory"), "(none)");
    EXPECT_TRUE(form.Closed);
}

}  // namespace lv
