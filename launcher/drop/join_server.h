// launcher/drop/join_server.h
//
// The dialog that shows a server's address and the programs and setups that can join it.

#pragma once

#include "catalogs/server_word.h"
#include "foundation/modal_window.h"
#include "launcher/drop/listed_programs.h"

namespace lv {

/// A program of the list, or a setup with such a program.
struct JoinChoice {
    Text Words;     // as the row has it
    Text Program;   // its path
    int Setup = 0;  // its number; 0: the program as it is
};

struct JoinServer_Frm : ModalWindow {
    JoinServer_Frm(Launcher& owner, ServerLink server);

    Launcher& launcher;
    const ServerLink Server;
    std::vector<JoinChoice> Choices;  // a row each

    Label JoinAddress_Lbl;
    TextBox JoinAddress_Txt;  // can be selected and copied, not changed
    Label JoinPrograms_Lbl;
    ListBox JoinPrograms_Lst;
    Label JoinHint_Lbl;
    CommandButton Join_Cmd;
    CommandButton JoinAdd_Cmd;
    CommandButton Cancel_Cmd;

    enum class Answer { None, Join, Add };
    Answer Chosen = Answer::None;
};

/// The listed programs that can join, and behind them the setups of such: for "qw" the clients of QuakeWorld, for
/// "quake" all of Quake, for "quake2" those of Quake II, for a plain address all that play a known game. An engine that
/// is a server alone joins nothing.
std::vector<JoinChoice> ChoicesThatJoin(Launcher& launcher, const ServerLink& server);

/// "host" or "host:port".
Text AddressOf(const ServerLink& server);

void JoinServer_JoinPrograms_Lst_Click(JoinServer_Frm& form);
void JoinServer_Join_Cmd_Click(JoinServer_Frm& form);
void JoinServer_JoinAdd_Cmd_Click(JoinServer_Frm& form);
/// Also for the window's close box.
void JoinServer_Cancel_Cmd_Click(JoinServer_Frm& form);

/// Shows the dialog and does what was chosen: joining picks the program or the setup, puts the server into its list,
/// ticks it and launches; adding opens the editor of servers, filled in.
void OfferServer(Launcher& launcher, const ServerLink& server);

}  // namespace lv
