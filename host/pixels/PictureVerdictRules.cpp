#include "PictureVerdictRules.h"

#include "PicturePlane.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Zenvora::Lumidex::Host {

namespace {

/// Below that a copy shows neither text nor small things.
constexpr int kLeastSide = 200;

/// Beyond so many times the allowance nothing but an edit is left.
constexpr double kClearly = 4;

std::string CopyText(const QSize& photo, const QSize& kept) {
  if (photo == kept) {
    return "the same picture, compressed again or in another format";
  }
  return PixelsOf(photo) < PixelsOf(kept) ? "the same picture, smaller" : "the same picture, larger";
}

/// What was done to the picture as a whole; empty: nothing.
std::string EditOf(const CopyFinding& finding, bool isScaled) {
  // Compressing takes contrast from fine patterns, and scaling programs sharpen a little.
  constexpr double kContrast = 0.07;
  constexpr double kLevels = 4;
  const double sharper = isScaled ? 1.7 : 1.3;
  if (std::abs(finding.brightness) > kLevels) {
    return finding.brightness > 0 ? "brighter" : "darker";
  }
  if (std::abs(finding.gain - 1) > kContrast) {
    return finding.gain > 1 ? "with more contrast" : "with less contrast";
  }
  return finding.sharpness > sharper ? "sharpened" : "";
}

PictureVerdict VerdictOfMatch(const CopyFinding& finding, const QSize& compared, const JudgedPicture& photo,
                              const JudgedPicture& kept) {
  const bool isScaled = photo.size != kept.size;
  const std::string edit = EditOf(finding, isScaled);
  // Where there is nothing to see but a colour, the colour is the picture.
  constexpr double kLeastSeen = 0.01;
  constexpr double kOneColour = 2;
  if (finding.seen < kLeastSeen && finding.otherTone > kOneColour) {
    return {Verdict::Different, "another plain colour", finding.worst};
  }
  if (!edit.empty()) {
    return {Verdict::Alike, "the same picture, " + edit, finding.worst};
  }
  if (photo.isPreview || kept.isPreview) {
    return {Verdict::Alike, "the same picture as far as a preview shows", finding.worst};
  }
  if (isScaled && std::max(compared.width(), compared.height()) < kLeastSide) {
    return {Verdict::Alike, "the same picture as far as so few pixels show", finding.worst};
  }
  return {Verdict::Same, CopyText(photo.size, kept.size), std::max(finding.worst, finding.worstColour)};
}

}  // namespace

std::int64_t PixelsOf(const QSize& size) {
  return static_cast<std::int64_t>(size.width()) * size.height();
}

std::string PlaceName(const QPointF& at) {
  constexpr double kThird = 1.0 / 3;
  const auto part = [](double value) { return value < kThird ? 0U : value < 2 * kThird ? 1U : 2U; };
  constexpr std::array<std::array<const char*, 3>, 3> kNames = {
      {{"the upper left", "the top", "the upper right"},
       {"the left", "the middle", "the right"},
       {"the lower left", "the bottom", "the lower right"}}};
  return kNames[part(at.y())][part(at.x())];
}

bool IsScaled(const QSize& a, const QSize& b) {
  const QSize& large = PixelsOf(a) >= PixelsOf(b) ? a : b;
  const QSize& small = PixelsOf(a) >= PixelsOf(b) ? b : a;
  if (small.isEmpty()) {
    return false;
  }
  // One pixel of the smaller one for rounding.
  const double byWidth = static_cast<double>(large.height()) * small.width() / large.width();
  const double byHeight = static_cast<double>(large.width()) * small.height() / large.height();
  return std::abs(byWidth - small.height()) <= 1.01 || std::abs(byHeight - small.width()) <= 1.01;
}

std::optional<PictureVerdict> VerdictOfCopies(const CopyFinding& finding, const QSize& compared,
                                              const JudgedPicture& photo, const JudgedPicture& kept) {
  const double worst = std::max(finding.worst, finding.worstColour);
  if (worst <= 1) {
    return VerdictOfMatch(finding, compared, photo, kept);
  }
  if (finding.worst <= 1 && std::min(finding.colour, finding.otherColour) <= kGrey) {
    return PictureVerdict{
        Verdict::Alike,
        finding.otherColour <= kGrey ? "the same picture without colours" : "the same picture with colours",
        worst};
  }
  // What is a copy but for one place was edited there, or is another page of the same form. The less there
  // is beyond that place, the less it takes: a word of a page made small comes to 3.5 times the allowance,
  // where programs scale fine lines in other ways no more than 2.3.
  constexpr double kMostly = 0.9;
  constexpr double kWholly = 0.98;
  const double clearly = finding.alike >= kWholly ? 3 : kClearly;
  if (finding.alike >= kMostly && worst > clearly && EditOf(finding, photo.size != kept.size).empty()) {
    const QPoint& at = finding.worst >= finding.worstColour ? finding.where : finding.whereColour;
    return PictureVerdict{
        Verdict::Different,
        "differs at " + PlaceName({(at.x() + 0.5) / compared.width(), (at.y() + 0.5) / compared.height()}),
        worst};
  }
  return std::nullopt;
}

std::optional<PictureVerdict> VerdictOfWhole(const WholeFinding& finding, bool isScaled) {
  // A letter in faint print: within what is allowed, and far beyond all else of its picture. Copies come
  // to 1.5 times that at most, those of quality 20 to 2.
  constexpr double kSomething = 0.6;
  const double limit = (1.6 + 0.8 * finding.strictness) * finding.elsewhere;
  const bool standsOut = !isScaled && finding.worst > std::max(kSomething, limit);
  // Programs that scale sharply come to 1.27, sharpening to 1.5 and more.
  constexpr double kSharper = 1.4;
  if (finding.worst <= 1 && !standsOut) {
    return finding.sharpness > kSharper ? std::make_optional(PictureVerdict{
                                              Verdict::Alike, "the same picture, sharpened", finding.worst})
                                        : std::nullopt;
  }
  if (finding.worst > kClearly) {
    return PictureVerdict{Verdict::Different, "differs at " + PlaceName(finding.where), finding.worst};
  }
  return PictureVerdict{Verdict::Alike,
                        "the same picture, but for something small at " + PlaceName(finding.where),
                        finding.worst};
}

std::optional<PictureVerdict> VerdictOfAligned(const AlignedFinding& finding) {
  // Drawings and pages are told apart by little; in photos hands and faces may have moved.
  constexpr double kDrawn = 0.35;
  constexpr double kShown = 0.68;
  constexpr double kLeastSeen = 0.02;
  const bool isDrawn = finding.plain > kDrawn;
  const double mostWrong = isDrawn ? 0.02 : 0.05;
  const double mostTogether = isDrawn ? 0.005 : 0.022;
  if (!finding.found || finding.seen < kLeastSeen || finding.wrong > mostWrong ||
      finding.largest > mostTogether || finding.firstShown < kShown || finding.secondShown < kShown) {
    return std::nullopt;
  }
  constexpr double kWhole = 0.975;
  constexpr double kStraight = 0.3;
  constexpr double kLevels = 6;
  std::string why = "nearly the same view";
  if (std::abs(finding.turned) > kStraight) {
    why = "the same view, turned a little";
  } else if (finding.firstShown < kWhole && finding.secondShown >= kWhole) {
    why = "the same view, cropped";
  } else if (finding.secondShown < kWhole && finding.firstShown >= kWhole) {
    why = "the same view with more around it";
  } else if (std::abs(finding.brightness) > kLevels) {
    why = finding.brightness > 0 ? "the same view, brighter" : "the same view, darker";
  }
  return PictureVerdict{Verdict::Alike, why, 0};
}

}  // namespace Zenvora::Lumidex::Host
