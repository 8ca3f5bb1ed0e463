#include "foundry/look/alias_graph_frm.h"

#include <algorithm>
#include <numeric>

#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr std::size_t kIndent = 4;
constexpr std::size_t kMostTreeRows = 20'000;

TextView HowText(CallKind how) {
    switch (how) {
        case CallKind::OnRelease:
            return ", when the key is released";
        case CallKind::Defines:
            return ", by giving it another body";
        case CallKind::Binds:
            return ", by binding a key to it";
        case CallKind::Runs:
            break;
    }
    return {};
}

TreeOf WayOf(const AliasGraph_Frm& form) {
    return form.Way_Cbo.ListIndex == 1 ? TreeOf::Callers : TreeOf::Calls;
}

Text TextOfRow(const AliasGraph_Frm& form, const AliasGraph_Frm::Row& row) {
    const AliasNode& node = form.Graph.Nodes()[row.Its.Node];
    const TextView sign = !row.Its.HasRows ? "   " : row.IsOpen ? "-  " : "+  ";
    Text text = Join(Text((row.Path.size() - 1) * kIndent, ' '), sign, node.IsKey ? "key " : "", node.Name,
                     row.Path.size() > 1 ? HowText(row.Its.How) : TextView());
    if (row.Its.IsLoop) {
        text += "   (A LOOP: it stands above already)";
    } else if (node.CallsItself && row.Path.size() == 1) {
        text += "   (calls itself)";
    }
    return text;
}

void ShowRows(AliasGraph_Frm& form) {
    form.Tree_Lst.Items.clear();
    for (const AliasGraph_Frm::Row& row : form.Rows) {
        form.Tree_Lst.Items.push_back(TextOfRow(form, row));
    }
    AliasGraph_Tree_Lst_Click(form);
}

AliasGraph_Frm::Row* Selected(AliasGraph_Frm& form) {
    return form.Tree_Lst.HasSelection() ? &form.Rows[static_cast<std::size_t>(form.Tree_Lst.ListIndex)] : nullptr;
}

void FillRoots(AliasGraph_Frm& form) {
    const std::vector<AliasNode>& nodes = form.Graph.Nodes();
    std::vector<std::size_t> order(nodes.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {},
                             [&](std::size_t i) { return std::pair(nodes[i].IsKey, LowerCase(nodes[i].Name)); });
    form.Rows.clear();
    for (const std::size_t i : order) {
        if (form.Rows.size() == kMostTreeRows) {
            break;
        }
        const bool hasRows = !(WayOf(form) == TreeOf::Calls ? nodes[i].Calls : nodes[i].Callers).empty();
        form.Rows.push_back({{i}, {.Node = i, .HasRows = hasRows}});
    }
    form.Tree_Lst.ListIndex = form.Rows.empty() ? -1 : 0;
    ShowRows(form);
}

}  // namespace

AliasGraph_Frm::AliasGraph_Frm(Run& owner, std::span<const NamedBody> bodies, Console console)
    : ModalWindow(owner, "AliasGraph_Frm"), Graph(bodies, console) {
    Caption = "Alias Graph";
    Way_Lbl.Caption = "&Show:";
    Way_Cbo.Items = {"What each calls", "Who calls each"};
    Way_Cbo.ListIndex = 0;
    const auto loops = std::ranges::count_if(Graph.Nodes(), &AliasNode::CallsItself);
    Tree_Lbl.Caption =
        Graph.Nodes().empty() ? Text("This script has neither an alias nor a bound key.")
        : loops == 0          ? Text("Right opens a row, Left closes it. No alias calls itself.")
                     : Join("Right opens a row, Left closes it. Aliases that call themselves: ", std::to_string(loops));
    Close_Cmd.Caption = "&Close";
    Focus = "Tree_Lst";
    FillRoots(*this);
}

void AliasGraph_Way_Cbo_Click(AliasGraph_Frm& form) {
    FillRoots(form);
}

void AliasGraph_Tree_Lst_Click(AliasGraph_Frm& form) {
    const AliasGraph_Frm::Row* const row = Selected(form);
    form.Open_Cmd.Caption = row != nullptr && row->IsOpen ? "C&lose the Row" : "&Open the Row";
    form.Open_Cmd.Enabled = row != nullptr && row->Its.HasRows;
}

void AliasGraph_OpenRow(AliasGraph_Frm& form) {
    AliasGraph_Frm::Row* const row = Selected(form);
    if (row == nullptr || row->IsOpen || !row->Its.HasRows || form.Rows.size() >= kMostTreeRows) {
        return;
    }
    row->IsOpen = true;
    std::vector<AliasGraph_Frm::Row> below;
    for (const TreeRow& each : RowsBelow(form.Graph, row->Path, WayOf(form))) {
        std::vector<std::size_t> path = row->Path;
        path.push_back(each.Node);
        below.push_back({std::move(path), each});
    }
    form.Rows.insert(form.Rows.begin() + form.Tree_Lst.ListIndex + 1, below.begin(), below.end());
    ShowRows(form);
}

void AliasGraph_CloseRow(AliasGraph_Frm& form) {
    AliasGraph_Frm::Row* const row = Selected(form);
    if (row == nullptr) {
        return;
    }
    const std::size_t depth = row->Path.size();
    const auto at = form.Rows.begin() + form.Tree_Lst.ListIndex;
    if (!row->IsOpen) {
        const auto above = std::find_if(std::make_reverse_iterator(at), form.Rows.rend(),
                                        [depth](const AliasGraph_Frm::Row& each) { return each.Path.size() < depth; });
        if (above != form.Rows.rend()) {
            form.Tree_Lst.ListIndex = static_cast<int>(above.base() - form.Rows.begin()) - 1;
        }
        AliasGraph_Tree_Lst_Click(form);
        return;
    }
    row->IsOpen = false;
    form.Rows.erase(at + 1, std::find_if(at + 1, form.Rows.end(), [depth](const AliasGraph_Frm::Row& each) {
                        return each.Path.size() <= depth;
                    }));
    ShowRows(form);
}

void AliasGraph_Open_Cmd_Click(AliasGraph_Frm& form) {
    const AliasGraph_Frm::Row* const row = Selected(form);
    row != nullptr && row->IsOpen ? AliasGraph_CloseRow(form) : AliasGraph_OpenRow(form);
}

void AliasGraph_Close_Cmd_Click(AliasGraph_Frm& form) {
    form.Closed = true;
}

}  // namespace lv
