#include <zenvora/app/IAlerts.h>

#include <initializer_list>

namespace Zenvora::App {

namespace {

/// The button that `buttons` hold alone of those given.
AlertButton OnlyOneOf(AlertButtons buttons, std::initializer_list<AlertButton> candidates) {
  AlertButton found = AlertButton::None;
  for (const AlertButton candidate : candidates) {
    if (buttons.testFlag(candidate)) {
      if (found != AlertButton::None) {
        return AlertButton::None;
      }
      found = candidate;
    }
  }
  return found;
}

AlertButton FirstOf(AlertButtons buttons, std::initializer_list<AlertButton> preference) {
  for (const AlertButton candidate : preference) {
    if (buttons.testFlag(candidate)) {
      return candidate;
    }
  }
  return AlertButton::Ok;
}

}  // namespace

AlertButton EscapeButton(AlertButtons buttons) {
  const auto bits = static_cast<unsigned int>(buttons);
  if (bits == 0) {
    return AlertButton::Ok;
  }
  if ((bits & (bits - 1)) == 0) {
    return AlertButton(bits);
  }
  if (buttons.testFlag(AlertButton::Cancel)) {
    return AlertButton::Cancel;
  }
  const AlertButton refusal = OnlyOneOf(buttons, {AlertButton::Close, AlertButton::Abort});
  return refusal != AlertButton::None ? refusal : OnlyOneOf(buttons, {AlertButton::No, AlertButton::NoToAll});
}

AlertButton DefaultButton(AlertButtons buttons) {
  using B = AlertButton;
  return FirstOf(buttons, {B::Ok, B::Yes, B::Save, B::Open, B::Retry, B::Apply, B::Close, B::SaveAll,
                           B::YesToAll, B::Ignore, B::Cancel, B::No, B::Abort, B::NoToAll, B::Help,
                           B::Discard, B::Reset, B::RestoreDefaults});
}

AlertButton UnansweredButton(AlertButtons buttons) {
  using B = AlertButton;
  const AlertButton escape = EscapeButton(buttons);
  return escape != B::None ? escape
                           : FirstOf(buttons, {B::Close, B::Abort, B::No, B::NoToAll, B::Ok, B::Ignore,
                                               B::Help, B::Open, B::Yes, B::YesToAll, B::Save, B::SaveAll,
                                               B::Apply, B::Retry, B::Discard, B::Reset, B::RestoreDefaults});
}

}  // namespace Zenvora::App
