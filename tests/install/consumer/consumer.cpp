// SPDX-License-Identifier: Apache-2.0
#include <ostrel/error.h>
#include <ostrel/language.h>

#include <iostream>

int main() {
  for (const char* language : {"it", "en"}) {
    if (!ostrel::set_language(language)) return 1;
    std::cout << xVeldError(errNoWall, -1, nullptr).MakeErrStr() << '\n';
  }
}
