#pragma once

/// What the program tells about itself.
namespace kvdlg {

inline constexpr const char* kHelp = R"(
  kvdlg list                                   which dialogs there are
  kvdlg describe CKvGuiPipeStatusDlg           how to talk to one of them
  kvdlg run CKvGuiPipeStatusDlg                opens it in a window
  kvdlg run CKvGuiPipeStatusDlg --script FILE  plays a script on it, without a window
  kvdlg run CKvGuiPipeStatusDlg --record FILE  opens it, and writes what is done in it as a script
  kvdlg run CKvGuiPipeStatusDlg --set text=ACT --print text
                                               for shell scripts: one input, one value of the outcome
  kvdlg run --help                             how to write a script

Exit codes: 0 done, 1 cancelled, 2 wrong use or a script that does not fit, 3 a failure of the
database or of a file.)";

inline constexpr const char* kDescribeHelp = R"(
Prints a JSON object:
  "inputs"    what the dialog takes: name, type, meaning, and a sample that works on the sample
              database, where one is needed. A "flag" is true or false.
  "controls"  in tab order: id, kind, text, the label of what has no text of its own, the key that
              reaches it, its tool tip, and whether Tab stops there. What starts disabled, hidden or
              read-only says so.
  "calls"     what the action "call" may call, for tools that a host works with while they are open.
  "returns"   what "outcome" holds in the end.
  "script"    a script that opens the dialog with its samples, looks at it, and cancels.)";

inline constexpr const char* kScriptHelp = R"(
A script plays the user. It is a JSON file:

  { "inputs": { "column": "lessee", "table": "NORVADON.gulf_mexico_lease" },
    "user": [
      { "window": "CKvGuiListSel",
        "do": [ {"type": [1191, "shell"]}, {"click": 1192}, {"select": [1193, [0, 2]]},
                {"click": 1188}, {"click": 1} ] },
      { "message": "No Matches found!", "answer": "ok" },
      { "file": "C:\\tmp\\a.txt" } ] }

The head may say which printer there is, as "printer": {...}, in the words of the scene "print"
below; null for none. Left out, it is one without a name, with Letter paper. "drives" maps letters
beside those of the registry, as {"D": {"folder": "C:\\data", "kind": "removable"}}; the kind may also
be "fixed", which it is if left out, "remote" or "CD-ROM". "time": "2024-05-06T07:08:09Z" is what time
it is, and stays so; left out, it is the machine's. "screen": [1366, 728] is how large the screen is in
pixels; left out, [1920, 1080]. "folder": "C:\\data" is the current folder. "registry":
{"SOFTWARE\\KVI": {"DATASET": "GULF_MEXICO"}} stands in the place of the user's, and keeps nothing.

A name in a script that is none of these is refused, with its line.

"user" lists scenes, which are taken in the order in which things open. A message box that opens
between two actions of a window is the scene behind that window's.

  {"window": NAME, "do": [...]}   a window of that class or caption ("": any); the actions end it
  {"message": TEXT, "answer": A}  a message box with that text ("": any); A is "ok", "cancel",
                                  "yes", "no", "retry", "abort" or "ignore"; "ok" if left out
  {"file": PATH}                  a file dialog, which gets that path; null cancels it
  {"print": {...}}                print setup, which gets a printer: "device", "form" (name of the
                                  paper), "paper" (its number, where it has one), "landscape",
                                  "width" and "height" (of the sheet as it lies in portrait, tenths
                                  of a millimetre); null cancels it
  {"map": [PICK, ...]}            the map that blocks are picked on; a pick is "AREA,BLOCK,EXTENSION"
                                  with the area's name; null cancels it
  {"pump": N, "do": [...]}        acts on the window in front inside long work, after N steps of it
  {"wait": N, "do": [...]}        the same of the window that comes up when a query takes longer than
                                  half a second, by which it can be cancelled
  {"query": SQL, "after": N, "do": [...]}
                                  acts on that window whatever time the query takes: ahead of the
                                  one with that text ("": any), as --trace tells it, after N of
                                  them; 0 if left out

Actions, with the ids that "kvdlg describe CLASS" tells:

  {"click": ID}                   a button, check box or radio button
  {"type": [ID, TEXT]}            replaces a text, key by key
  {"keys": [ID, TEXT]}            types where the caret stands, key by key; the id 0 is what has the
                                  focus
  {"mark": [ID, FROM, TO]}        selects text with the mouse, by places in it
  {"edit": [ID, COMMAND]}         cut, copy, paste, delete or undo, from the menu of a text
  {"key": [ID, KEY]}              one key: a letter, a digit, Enter, Escape, Tab, Space, Backspace,
                                  Delete, Insert, Home, End, Left, Right, Up, Down, PageUp, PageDown
                                  or F1 to F24, with "Shift+", "Ctrl+", "Alt+" ahead of it; the id 0 is
                                  what has the focus
  {"paste": [ID, TEXT]}           a text by way of the clipboard
  {"select": [ID, ROWS]}          a row by its text or number from 0, or a list of them
  {"select": [ID, ROW, KEYS]}     clicks a row with "Shift", "Ctrl" or "Shift+Ctrl" held; the row []
                                  is the room behind the rows
  {"doubleclick": [ID, ROW]}      a row by its text or number; of a button, {"doubleclick": ID} is
                                  the second click
  {"rightclick": [ID, ROW]}       a row of a table with the right button
  {"check": [ID, ROW]}            the check box of a row
  {"heading": [ID, COLUMN]}       the heading of a column, counted from 0
  {"copy": ID}                    copies the selected rows to the clipboard
  {"drop": ID}                    drops the list of a combo box down, or closes it
  {"closelist": ID}               closes it as a click elsewhere does
  {"step": [ID, WAY]}             an arrow of a spin button, "up" or "down"
  {"wheel": [ID, NOTCHES]}        the mouse wheel, up being positive
  {"tool": [ID, TOOL]}            a button of a tool bar
  {"focus": ID}                   goes to a control; the id 0 is what holds a bar
  {"hold": ID}                    presses a button and holds it; {"holdagain": ID} the second time,
                                  {"release": ID} lets it go, {"letgo": ID} beside it
  {"clipboard": TEXT}             what the clipboard holds from now on
  {"pause": null}                 waits until what is typed into a list begins a new text
  {"close": null}                 closes the window by its window button
  {"call": [METHOD, ...]}         what the host of an open tool calls, with its arguments
  {"snapshot": NAME}              adds the controls as they stand to "windows"

A script need not be written by hand: --record FILE writes what is done in the windows as one, with a
head that says what was outside them. What was typed into a password box is not in it: there stands
an asterisk for each byte. Neither are places on the screen, pictures and times.

For shell scripts, --set NAME=VALUE gives one input, a number, true or false, a list or an object as
in JSON, and a text without quotes; of a list of texts each --set adds one. --print KEY prints what the
outcome holds under that name, a text without quotes, of a list each item on a line; "bounds.0" is the
first item of "bounds". The exit code tells whether the dialog was cancelled.

The outcome is one JSON object: "result" (IDOK, IDCANCEL), "outcome" (what the dialog leaves to its
caller), "messages" (texts of the message boxes), "sql" (with --trace), "windows" (each window's
controls as they stood when it closed, and at each snapshot).

Exit codes: 0 done, 1 cancelled, 2 wrong use or a script that does not fit, with the line in the
script and what was expected, 3 a failure of the database or of a file.)";

}  // namespace kvdlg
