#pragma once

#include <string>

#include "base/export.h"
#include "window/node.h"

/// The letters that reach controls with Alt: those that texts mark, and those that the layer gives.
namespace kv {

/// The control that a label names: the field behind it, or, where it is the unit beside a spin
/// button, the field that this one steps. Null for none.
KVGUICTL_API Node* FieldOf(const Node& label);

/// Gives the push buttons and the labels of fields whose texts mark no letter one of the letters of
/// their text: none twice, as many as there are letters, the same ones for the same controls.
KVGUICTL_API void GiveMnemonics(Node& dialog);

/// In capitals, 0 for none: the letter that the text marks, and that one or else the given one.
/// With the text's own letter a control is reached from a button without Alt, too.
KVGUICTL_API char MarkedMnemonicOf(const Node& node);
KVGUICTL_API char MnemonicOf(const Node& node);

/// The letter that reaches a control with Alt, of a field that of its label; 0 for none.
KVGUICTL_API char KeyOf(const Node& control);

/// The text with the given letter marked, too, where it has it.
KVGUICTL_API std::string MarkedText(const Node& node);

}  // namespace kv
