#include "SimilarJobs.h"

#include <cli/session/Options.h>
#include <host/similar/SimilarJudging.h>

#include <algorithm>
#include <cstddef>
#include <optional>

namespace Zenvora::Lumidex::Cli {

namespace {

/// The photo, with its place in the list; none when it is lost or has changed since it was looked at.
std::optional<Host::PhotoRecord> FindPlace(const SimilarStores& stores,
                                           const std::vector<Host::SuggestedGroup>& groups,
                                           ExplainedPhoto& place) {
  const auto isIt = [&place](const Host::SimilarMember& member) { return member.photo.path == place.path; };
  for (const Host::SuggestedGroup& shown : groups) {
    const std::vector<Host::SimilarMember>& members = shown.group.members;
    const auto found = std::find_if(members.begin(), members.end(), isIt);
    if (found != members.end()) {
      const auto index = static_cast<std::size_t>(found - members.begin());
      place.group = shown.group.number;
      place.isKept = index == shown.keeper.index;
      place.verdict = shown.verdicts[index].verdict;
      return found->photo;
    }
  }
  for (const Host::SimilarGroup& alone : stores.similar.Groups(1)) {
    if (isIt(alone.members.front())) {
      return alone.members.front().photo;
    }
  }
  return std::nullopt;
}

}  // namespace

ExitCode ExplainPair(SimilarStores& stores, const SimilarArguments& arguments, Session& session) {
  ExplainView view;
  view.first.path = KnownName(stores.similar, AbsolutePath(arguments.explain[0]));
  view.second.path = KnownName(stores.similar, AbsolutePath(arguments.explain[1]));
  const auto facts = stores.similar.Explain(view.first.path, view.second.path);
  if (!facts) {
    // Somebody began anew just now.
    ThrowNotCompared(view.first.path);
  }
  view.facts = *facts;
  const std::vector<Host::SuggestedGroup> groups = Host::SuggestGroups(stores.similar, stores.verdicts, 2);
  const auto first = FindPlace(stores, groups, view.first);
  const auto second = FindPlace(stores, groups, view.second);
  // As the list has it, where the list compares the two.
  view.secondIsKept = !view.first.isKept;
  if (first && second) {
    view.verdict = view.secondIsKept ? Host::JudgePair(stores.verdicts, *first, *second)
                                     : Host::JudgePair(stores.verdicts, *second, *first);
  }
  session.output.Print(session.globals.json ? ExplainDocument(view) : ExplainText(view));
  return ExitCode::Done;
}

}  // namespace Zenvora::Lumidex::Cli
