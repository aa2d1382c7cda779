#include "solve.hpp"

#include <cmath>
#include <sstream>

namespace tt {

std::vector<std::pair<int, int>> slicesOf(int count, int threads, bool parallel) {
  if (!parallel) return {{0, count}};
  const int q = count / threads, r = count % threads;
  std::vector<std::pair<int, int>> out;
  for (int id = 0; id < threads; ++id)
    out.push_back(id < r ? std::pair{id * (q + 1), q + 1} : std::pair{(q + 1) * r + (id - r) * q, q});
  return out;
}

bool contiguousCall(const CallFixture& fx) {
  for (int i = 0; i < fx.member().nop; ++i)
    if ((fx.member().blk[i].has & kElem) && fx.args.op[i].elem != fx.esize()) return false;
  return true;
}

std::string compareWalk(const CallFixture& fx, int dst, int perObject, int threads, bool parallel,
                        const std::function<Outcome(int n)>& model, const std::function<Place(int n, int k)>& place,
                        int& status, bool pairs) {
  std::ostringstream why;
  int bad = 0;
  const int es = fx.esize();
  status = 0;
  auto check = [&](int n, int k, uint64_t want, const char* what) {
    const Place p = place(n, k);
    const uint64_t got = fx.block(dst).bits(p.n, p.r, p.c);
    const bool nan = std::isnan(valueOf(want, es)) && std::isnan(valueOf(got, es));
    if (got != want && !nan && bad++ < 4)
      why << "object " << n << " element " << k << " " << what << ": want " << std::hex << want << " got " << got
          << std::dec << "; ";
  };
  auto kept = [&](int n, int k) {
    const Place p = place(n, k);
    check(n, k, fx.before(dst).bits(p.n, p.r, p.c), "kept");
  };
  const int count = fx.member().hasCount ? fx.count() : 1;
  for (auto [first, len] : slicesOf(count, threads, parallel)) {
    int n = first;
    while (n < first + len) {
      const int step = pairs && n + 1 < first + len ? 2 : 1;
      std::vector<Outcome> o;
      for (int i = 0; i < step; ++i) o.push_back(model(n + i));
      const bool fails = o[0].status || o.back().status;
      for (int i = 0; i < step; ++i)
        for (int k = 0; k < perObject; ++k)
          if (step == 2 && fails) kept(n + i, k);
          else if (!o[size_t(i)].kept.empty() && o[size_t(i)].kept[size_t(k)]) kept(n + i, k);
          else check(n + i, k, bitsOf(o[size_t(i)].values[size_t(k)], es), "result");
      n += step;
      if (fails) {
        status = o[0].status ? o[0].status : o.back().status;
        break;
      }
    }
    for (; n < first + len; ++n)
      for (int k = 0; k < perObject; ++k) kept(n, k);
  }
  return why.str();
}

}  // namespace tt
