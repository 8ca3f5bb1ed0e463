// tests/foundry/editor/find_fixture.h
//
// A script in which texts are looked for, with all pages to be seen.

#pragma once

#include "foundry/editor/find_text.h"
#include "tests/foundry/editor/fig_fixture.h"

namespace lv {

class FindTest : public FigTest {
  protected:
    /// With all pages of bindings, and no key in the picture.
    void Start(const ScriptDialect& dialect = kQuakeDialect, TextView script = "") {
        Open(dialect, script);
        form.Bindings_Tab.Pages.assign(7, {});
        form.Document.Options_Tab.Pages.assign(5, {});
        for (KeyLabel& label : form.Key_Lbl) {
            label.Exists = false;
        }
        form.FoundControl = "nothing";
    }

    void ShowKey(Index label, TextView caption) {
        form.KeyLabelOf(label).Exists = true;
        form.KeyLabelOf(label).Visible = true;
        form.KeyLabelOf(label).Caption = caption;
    }

    /// What Find_Lbl says.
    Text Type(TextView text) {
        form.Find_Txt.Text = text;
        Find_Txt_Change(form);
        return form.Find_Lbl.Caption;
    }

    /// What Find_Lbl says, and the control that the keyboard goes to.
    Text Next() {
        form.FoundControl.clear();
        FindNext_Cmd_Click(form);
        return Join(form.Find_Lbl.Caption, " -> ", form.FoundControl);
    }
};

}  // namespace lv
