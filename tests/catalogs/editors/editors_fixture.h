// tests/catalogs/editors/editors_fixture.h
//
// What the tests of the entry editors share: faults and confirmations as the user sees them.

#pragma once

#include "catalogs/editors/entry_window.h"
#include "tests/catalogs/catalogs_fixture.h"

namespace lv {

class EditorsTest : public CatalogsTest {
  protected:
    void ExpectTold(TextView text, TextView title = "Lorvane 3D") {
        user.Expect({Text(title), Text(text), 0, false, true, "&OK"});
    }
    void ExpectConfirmed(TextView text) { user.Expect({"Lorvane 3D", Text(text), 0, false, true, "&Cool"}); }

    /// Presses OK, which is refused: the user is told and the focus moves.
    template <class Form>
    void ExpectFault(Form& form, void (*ok)(Form&), TextView focus, TextView text, TextView title = "Lorvane 3D") {
        ExpectTold(text, title);
        form.Focus.clear();
        ok(form);
        EXPECT_EQ(form.Focus, focus);
        EXPECT_FALSE(form.Closed);
        EXPECT_FALSE(form.DialogResult);
    }

    static Text Item(TextView title, TextView value) {
        Text item(title);
        item.resize(100, ' ');
        return item.append(value);
    }

    /// A row that makes the value longer than what is stored.
    static Text LongItem() { return Item("Long", Text(16000, 'x')); }
};

}  // namespace lv
