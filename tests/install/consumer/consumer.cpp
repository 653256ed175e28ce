// SPDX-License-Identifier: Apache-2.0
#include <ostrel/error.h>
#include <ostrel/language.h>
#include <ostrel/version.h>

#include <iostream>

int main() {
  std::cout << "Ostrel " << ostrel::version() << '\n';
  std::cout << xVeldError(errNoWall, -1, "").MakeErrStr() << '\n';
  if (!ostrel::set_language("en")) return 1;
  std::cout << xVeldError(errNoWall, -1, "").MakeErrStr() << '\n';
}
