// SPDX-License-Identifier: Apache-2.0
// What happens when a process loads the library: the messages find their catalogue. Nothing happens
// when it lets the library go.
#include <quillet/translation.h>

namespace {

struct BindingAtAttach {
  BindingAtAttach() { iBindLocale("Gorm"); }
};

const BindingAtAttach binding_at_attach;

}  // namespace
