#pragma once

#include <string>
#include <utility>
#include <vector>

namespace norvane {

class Control;

/// How a form is laid out, stated once by the form: what is beside and below what, which label belongs to which
/// field, and what stretches. The drawing side turns it into real layouts; the order of the controls in it is the tab
/// order.
namespace layout {

enum class Kind { Control, Row, Column, Strip, Fields, Field, Group, Tabs, Tab, Space };

struct Node {
  Node(Control& control_) : kind(Kind::Control), control(&control_) {}
  explicit Node(Kind kind_) : kind(kind_) {}

  Kind kind;
  Control* control = nullptr;  ///< the control, the frame of a group, the tab control
  std::string caption;         ///< a field's label, a group's or a tab's caption
  std::vector<Node> children;
  int stretch = 0;  ///< share of the room left over, 0 for the natural size
  int columns = 1;  ///< of a Fields node: label-and-field pairs side by side
};

using Nodes = std::vector<Node>;

/// Side by side, and one below the other.
Node Row(Nodes children);
Node Column(Nodes children);
/// A strip of buttons and small fields along an edge.
Node Strip(Nodes children);
/// Fields in `columns` columns, filled row by row, labels aligned.
Node Fields(Nodes fields, int columns = 1);
/// A field with the label that belongs to it. An "&" in the label makes an accelerator for the field.
Node Field(std::string label, Node content);
Node Group(std::string caption, Node content);
Node Group(Control& frame, Node content);
Node Tabs(Control& tabControl, const std::vector<std::pair<std::string, Node>>& tabs);
/// Takes a share of the room left over.
Node Stretch(Node node, int share = 1);
/// Room left over goes here.
Node Space();

/// All controls below the node, in reading order.
std::vector<Control*> ControlsOf(const Node& node);

}  // namespace layout
}  // namespace norvane
