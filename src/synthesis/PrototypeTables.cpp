#include "synthesis/PrototypeTables.h"

#include <cstddef>

namespace quilm {

namespace {

// Orders 2 to 17; from 11 up with two more digits.
constexpr f32 besselValues[] = {
    2.1478F,   0.5755F,                                                                                   // 2
    2.2034F,   0.9705F,   0.3374F,                                                                        // 3
    2.2404F,   1.0815F,   0.6725F,   0.2334F,                                                             // 4
    2.2582F,   1.111F,    0.804F,    0.5072F,    0.1743F,                                                 // 5
    2.2645F,   1.1126F,   0.8538F,   0.6392F,    0.4002F,    0.1365F,                                     // 6
    2.2659F,   1.1052F,   0.869F,    0.702F,     0.5249F,    0.3259F,    0.1106F,                         // 7
    2.2656F,   1.0956F,   0.8695F,   0.7303F,    0.5936F,    0.4409F,    0.2719F,    0.0919F,             // 8
    2.2649F,   1.0863F,   0.8639F,   0.7407F,    0.6306F,    0.5108F,    0.377F,     0.2313F,    0.078F,  // 9
    2.2641F,   1.0781F,   0.8561F,   0.742F,     0.6493F,    0.5528F,    0.4454F,    0.327F,     0.1998F,
    0.0672F,  // 10
    2.2846F,   1.0811F,   0.855833F, 0.74557F,   0.66352F,   0.582833F,  0.494421F,  0.3964F,    0.289751F,
    0.176548F, 0.059303F,  // 11
    2.28227F,  1.07437F,  0.847324F, 0.739363F,  0.664669F,  0.596025F,  0.522568F,  0.441519F,  0.352478F,
    0.25676F,  0.156081F, 0.052367F,  // 12
    2.28011F,  1.06861F,  0.83961F,  0.732369F,  0.662398F,  0.602098F,  0.540071F,  0.472077F,  0.397198F,
    0.315971F, 0.229534F, 0.139272F, 0.0466839F,  // 13
    2.27814F,  1.06371F,  0.832774F, 0.725323F,  0.658056F,  0.603637F,  0.550111F,  0.492417F,  0.428928F,
    0.359646F, 0.285262F, 0.206763F, 0.125269F,  0.0419588F,  // 14
    2.27645F,  1.05957F,  0.826816F, 0.718631F,  0.652766F,  0.602366F,  0.55518F,   0.500554F,  0.451234F,
    0.391788F, 0.327539F, 0.259166F, 0.187505F,  0.113463F,  0.0379826F,  // 15
    2.27516F,  1.05612F,  0.821714F, 0.712527F,  0.647192F,  0.599437F,  0.556933F,  0.51357F,   0.466668F,
    0.415338F, 0.359593F, 0.299874F, 0.236798F,  0.171064F,  0.10341F,   0.0345992F,  // 16
    2.27488F,  1.05327F,  0.817378F, 0.707089F,  0.641725F,  0.595579F,  0.55645F,   0.518F,     0.477086F,
    0.43244F,  0.383829F, 0.331492F, 0.27586F,   0.217467F,  0.1569F,    0.0947695F, 0.0316949F,  // 17
};

// Orders 2 to 10, from the small end.
constexpr f32 gaussianValues[] = {
    0.4728F, 2.185F,                                                                           // 2
    0.2624F, 0.8167F, 2.2262F,                                                                 // 3
    0.1772F, 0.5302F, 0.9321F, 2.245F,                                                         // 4
    0.1312F, 0.3896F, 0.6485F, 0.9782F, 2.2533F,                                               // 5
    0.1026F, 0.3045F, 0.5004F, 0.705F,  0.9982F, 2.2568F,                                      // 6
    0.0833F, 0.2473F, 0.4055F, 0.5606F, 0.7333F, 1.0073F, 2.2583F,                             // 7
    0.0695F, 0.2065F, 0.3388F, 0.4658F, 0.5942F, 0.7479F, 1.0116F, 2.259F,                     // 8
    0.0591F, 0.1761F, 0.2892F, 0.3973F, 0.5025F, 0.6134F, 0.7556F, 1.0137F, 2.2593F,           // 9
    0.0512F, 0.1525F, 0.2509F, 0.3451F, 0.4353F, 0.525F,  0.6244F, 0.7597F, 1.0147F, 2.2594F,  // 10
};

// Orders 3 to 10. The 0.0649 of order 7 breaks the pattern of its neighbours. Designs of this order were computed with
// it: put right here, it would change the parts of a stored design as soon as it is computed again.
constexpr f32 gaussian12Values[] = {
    2.3452F, 0.905F,  0.4152F,                                                               // 3
    2.1518F, 1.0598F, 0.6545F, 0.3097F,                                                      // 4
    2.3745F, 0.966F,  0.8112F, 0.5837F, 0.2909F,                                             // 5
    2.1154F, 1.1448F, 0.788F,  0.7962F, 0.607F,  0.3164F,                                    // 6
    2.3829F, 0.0649F, 0.9241F, 0.7753F, 0.8091F, 0.6267F, 0.3207F,                           // 7
    2.0612F, 1.2503F, 0.8182F, 0.9701F, 0.8028F, 0.8686F, 0.6565F, 0.3449F,                  // 8
    2.414F,  0.963F,  0.9857F, 0.8239F, 0.9426F, 0.8167F, 0.8467F, 0.65F,   0.3318F,         // 9
    1.8322F, 1.4303F, 0.7808F, 1.0929F, 0.7949F, 1.0183F, 0.8148F, 0.8817F, 0.6698F, 0.35F,  // 10
};
// The row of `order` in a table whose rows, of as many values as their order says, follow one another from
// `firstOrder` on.
std::span<const f32> RowOf(std::span<const f32> table, int firstOrder, int order) {
  if (order < firstOrder) return {};
  std::size_t start = 0;
  for (int before = firstOrder; before < order; ++before) start += static_cast<std::size_t>(before);
  const auto length = static_cast<std::size_t>(order);
  if (start + length > table.size()) return {};
  return table.subspan(start, length);
}

}  // namespace

std::span<const f32> BesselRow(int order) { return RowOf(besselValues, 2, order); }

std::span<const f32> GaussianRow(int order) { return RowOf(gaussianValues, 2, order); }

std::span<const f32> Gaussian12Row(int order) { return RowOf(gaussian12Values, 3, order); }

}  // namespace quilm
