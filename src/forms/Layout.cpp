#include "forms/Layout.h"

namespace norvane::layout {

namespace {

Node Container(Kind kind, Nodes children) {
  Node node(kind);
  node.children = std::move(children);
  return node;
}

Node Captioned(Kind kind, std::string caption, Node content) {
  Node node(kind);
  node.caption = std::move(caption);
  node.children.push_back(std::move(content));
  return node;
}

void Collect(const Node& node, std::vector<Control*>& controls) {
  if (node.control) controls.push_back(node.control);
  for (const Node& child : node.children) Collect(child, controls);
}

}  // namespace

Node Row(Nodes children) {
  return Container(Kind::Row, std::move(children));
}

Node Column(Nodes children) {
  return Container(Kind::Column, std::move(children));
}

Node Strip(Nodes children) {
  return Container(Kind::Strip, std::move(children));
}

Node Fields(Nodes fields, int columns) {
  Node node = Container(Kind::Fields, std::move(fields));
  node.columns = columns;
  return node;
}

Node Field(std::string label, Node content) {
  return Captioned(Kind::Field, std::move(label), std::move(content));
}

Node Group(std::string caption, Node content) {
  return Captioned(Kind::Group, std::move(caption), std::move(content));
}

Node Group(Control& frame, Node content) {
  Node node = Captioned(Kind::Group, "", std::move(content));
  node.control = &frame;
  return node;
}

Node Tabs(Control& tabControl, const std::vector<std::pair<std::string, Node>>& tabs) {
  Node node(Kind::Tabs);
  node.control = &tabControl;
  for (const auto& [caption, content] : tabs) node.children.push_back(Captioned(Kind::Tab, caption, content));
  return node;
}

Node Stretch(Node node, int share) {
  node.stretch = share;
  return node;
}

Node Space() {
  return Stretch(Node(Kind::Space));
}

std::vector<Control*> ControlsOf(const Node& node) {
  std::vector<Control*> controls;
  Collect(node, controls);
  return controls;
}

}  // namespace norvane::layout
