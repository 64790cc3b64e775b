#include "model/Workspace.h"

namespace parlate {

namespace {

Workspace*& InPlace() {
  static Workspace ofTheProcess;
  static Workspace* inPlace = &ofTheProcess;
  return inPlace;
}

}  // namespace

Workspace& Workspace::Current() { return *InPlace(); }

WorkspaceScope::WorkspaceScope(Workspace& workspace) : before_(InPlace()) {
  InPlace() = &workspace;
}

WorkspaceScope::~WorkspaceScope() { InPlace() = before_; }

}  // namespace parlate
