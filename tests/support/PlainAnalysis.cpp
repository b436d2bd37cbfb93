#include "support/PlainAnalysis.h"

#include <cmath>

namespace quilm::plain {

namespace {

// Ends the evaluation of a point.
struct Failure {};

f64 Finite(f64 x) {
  if (!std::isfinite(x)) throw Failure();
  return x;
}

f64 Over(f64 x, f64 y) {
  if (y == 0) throw Failure();
  return Finite(x / y);
}

const f64 ln10 = std::log(10.0);

f64 Log10(f64 x) {
  if (!(x > 0) || !std::isfinite(x)) throw Failure();
  return std::log(x) / ln10;
}

f64 Square(f64 x) { return x * x; }

struct Complex {
  f64 re = 0;
  f64 im = 0;
};

Complex operator+(Complex x, Complex y) { return {x.re + y.re, x.im + y.im}; }
Complex operator*(Complex x, Complex y) { return {x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re}; }
Complex operator*(f64 k, Complex x) { return {k * x.re, k * x.im}; }

struct Matrix {
  Complex a{1, 0}, b, c, d{1, 0};
};

Matrix operator*(const Matrix& m, const Matrix& n) {
  return {m.a * n.a + m.b * n.c, m.a * n.b + m.b * n.d, m.c * n.a + m.d * n.c, m.c * n.b + m.d * n.d};
}

struct Pair {
  f64 R;
  f64 X;
};

Pair ToParallel(f64 R, f64 X) {
  if (X == 0) X = 1e-10;
  const f64 Rp = (Square(Over(X, R)) + 1) * R;
  return {Rp, Over(R * Rp, X)};
}

Pair ToSeries(f64 Rp, f64 Xp) {
  const f64 Rser = std::fabs(Over(Rp, Square(Over(Rp, Xp)) + 1));
  return {Rser, Over(Rp * Rser, Xp)};
}

// The reactances of a stage at a frequency, each formed once where it is needed.
struct Part {
  const DesignRecord& record;
  f64 Omega;
  f64 Fq;
  f64 L;
  f64 C;

  f64 Rs() const { return Over(2 * Pi * Fq * L, record.Qind[1]); }
  f64 XL() const { return Omega * L; }
  Pair ParallelL(f64 rs) const {
    const f64 xl = XL();
    const f64 RpL = (Square(Over(xl, rs)) + 1) * rs;
    return {RpL, Over(rs * RpL, xl)};
  }
  f64 Xc() const { return C == 0 ? 1e11 : Over(-1, Omega * C); }
  f64 RpC(f64 xc) const { return std::fabs(static_cast<f64>(record.Qcap[1]) * xc); }
  Pair ParallelC() const {
    const f64 xc = Xc();
    return {RpC(xc), xc};
  }
  Pair SeriesC() const {
    const Pair parallel = ParallelC();
    const f64 RsC = Over(parallel.R, Square(Over(parallel.R, parallel.X)) + 1);
    return {RsC, Over(parallel.R * RsC, parallel.X)};
  }
  Pair SeriesLC() const {
    const Pair c = SeriesC();
    return {Rs() + c.R, XL() + c.X};
  }
  // Rtot and Xtot of the parallel sum.
  Pair Tank() const {
    Pair l = ParallelL(Rs());
    const Pair c = ParallelC();
    if (c.X + l.X == 0) l.X *= 1.00001;
    const f64 rpc = C == 0 ? 1e11 : c.R;
    return {Over(1, Over(1, l.R) + Over(1, rpc) + 1 / 1e11), Over(1, Over(1, c.X) + Over(1, l.X))};
  }
};

Matrix SeriesArm(Pair z) {
  Matrix m;
  m.b = {z.R, z.X};
  return m;
}

Matrix ShuntArm(Pair parallel) {
  Matrix m;
  m.c = {Over(1, parallel.R), -Over(1, parallel.X)};
  return m;
}

f64 Reciprocal32(f64 x) { return Finite(static_cast<f64>(static_cast<f32>(Over(1, x)))); }

Matrix LineStage(const Stage& stage, f64 Omega) {
  const f32 degrees = stage.TLval.degrees == 90 ? 90.0001F : stage.TLval.degrees;
  const f64 Z0 = stage.TLval.impedance;
  const f64 t = Over(degrees * Omega, static_cast<f64>(stage.TLval.freq) * 360);
  Matrix m;
  switch (stage.ElementType) {
    case TransLine:
      m.a = m.d = {std::cos(t), 0};
      m.b = {0, Z0 * std::sin(t)};
      m.c = {0, Over(std::sin(t), Z0)};
      break;
    case SeriesShortStub:
      m.b = {0, Z0 * std::tan(t)};
      break;
    case SeriesOpenStub:
      m.b = {0, -Over(Z0, std::tan(t))};
      break;
    case ShuntShortStub:
      m.c = {0, -Over(1, Z0 * std::tan(t))};
      break;
    default:
      m.c = {0, Over(std::tan(t), Z0)};
  }
  return m;
}

Matrix CoupledStage(const CoupledValue& coil, f64 Omega) {
  const f64 L1 = coil.primary;
  const f64 L2 = coil.secondary;
  const f64 M = coil.k * Finite(std::sqrt(L1 * L2));
  Matrix m;
  m.a = {Over(L1, M), 0};
  m.b = {0, Over(Omega * (L1 * L2 - M * M), M)};
  m.c = {0, -Over(1, Omega * M)};
  m.d = {Over(L2, M), 0};
  return m;
}

Matrix StageMatrix(const DesignRecord& record, const Stage& stage, f64 Omega, f64 Fq) {
  const Part part{record, Omega, Fq, stage.Lval.value, stage.Cval.value};
  const f64 R = stage.Rval.value;
  switch (stage.ElementType) {
    case SeriesL:
      return SeriesArm({std::fabs(part.Rs()), part.XL()});
    case ShuntL:
      return ShuntArm(part.ParallelL(std::fabs(part.Rs())));
    case SeriesC:
      return SeriesArm(part.SeriesC());
    case ShuntC:
      return ShuntArm(part.ParallelC());
    case SeriesSLC:
      return SeriesArm(part.SeriesLC());
    case ShuntSLC: {
      const Pair arm = part.SeriesLC();
      return ShuntArm(ToParallel(arm.R, arm.X));
    }
    case SeriesPLC: {
      const Pair tank = part.Tank();
      return SeriesArm(ToSeries(tank.R, tank.X));
    }
    case ShuntPLC:
      return ShuntArm(part.Tank());
    case SeriesR:
      return SeriesArm({R, 0});
    case ShuntR: {
      Matrix m;
      m.c = {Reciprocal32(R), 0};
      return m;
    }
    case Transformer: {
      Matrix m;
      m.a = {stage.XfmrVal.value, 0};
      m.d = {Reciprocal32(stage.XfmrVal.value), 0};
      return m;
    }
    case CoupledInductors:
      return CoupledStage(stage.CoupledVal, Omega);
    case ShuntRLC: {
      const Pair arm = part.SeriesLC();
      return ShuntArm(ToParallel(arm.R + R, arm.X));
    }
    case SeriesRLC: {
      const Pair tank = part.Tank();
      return SeriesArm(ToSeries(Over(1, Over(1, tank.R) + Over(1, R)), tank.X));
    }
    case TransLine:
    case SeriesShortStub:
    case SeriesOpenStub:
    case ShuntShortStub:
    case ShuntOpenStub:
      return LineStage(stage, Omega);
    default:
      return {};
  }
}

f64 Wrap(f64 angle) { return angle > 180 ? angle - 360 : angle < -180 ? angle + 360 : angle; }

f64 TurnedAngle(f64 re, f64 im, f64 onAxis) {
  if (re == 0) return im > 0 ? onAxis : -onAxis;
  f64 angle = -std::atan(Over(im, re)) * 180 / Pi;
  if (re < 0) angle += im < 0 ? -180 : 180;
  return Wrap(angle);
}

void Transmission(const Matrix& chain, f64 RS, f64 RL, Point& point) {
  const Complex sum = chain.b + RL * chain.a + RL * RS * chain.c + RS * chain.d;
  f64 Hr = Over(sum.re, RL);
  f64 Hi = Over(sum.im, RL);
  if (Hr == 0) Hr = 1e-10;
  if (Hi == 0) Hi = 1e-10;
  const f64 Mag = std::sqrt(Hi * Hi + Hr * Hr);
  const f32 fourRs = static_cast<f32>(4 * RS);
  point.TransDB = -10 * Log10(Over(Mag * Mag * RL, static_cast<f64>(fourRs)));
  point.Angle = TurnedAngle(Hr, Hi, -90);
}

void Delay(f32 PrevFreq, f32 PrevAngle, f32 Freq, Point& point) {
  point.PhaseStep = Wrap(point.Angle - static_cast<f64>(PrevAngle));
  f64 dF = static_cast<f64>(Freq) - static_cast<f64>(PrevFreq);
  if (std::fabs(dF) < 1e-27) dF = 1e-27;
  const f32 delay = static_cast<f32>(-point.PhaseStep / (360 * dF));
  point.Delay = static_cast<f32>(Finite(static_cast<f64>(delay)));
}

void Input(const Matrix& chain, f64 RL, f64 Rstandard, Point& point) {
  const Complex N = RL * chain.a + chain.b;
  const Complex D = RL * chain.c + chain.d;
  const f64 Den = D.re * D.re + D.im * D.im;
  const f64 R = Over(D.re * N.re + N.im * D.im, Den);
  const f64 X = Over(D.re * N.im - N.re * D.im, Den);
  const f64 mag = std::sqrt(R * R + X * X);
  Finite(static_cast<f64>(static_cast<f32>(mag)));
  point.ZinMag = mag;
  point.ZinAngleRaw = TurnedAngle(R, X, 90);
  f64 Rho = Over(std::sqrt(Square(R - Rstandard) + X * X), std::sqrt(Square(R + Rstandard) + X * X));
  if (Rho > 0.9999999) Rho = 0.9999999;
  if (Rho < 1e-7) Rho = 1e-7;
  point.ReturnDB = -20 * Log10(1 / Rho);
  point.VSWR = (1 + Rho) / (1 - Rho);
}

}  // namespace

void AnalyzePoint(const DesignRecord& record, f32 Fq, f32 PrevFreq, f32 PrevAngle, f32 Freq, Point& point) {
  if (record.Stages == 0) return;
  const f64 Omega = 2 * Pi * static_cast<f64>(Freq);
  try {
    Matrix chain;
    for (int s = 1; s <= record.Stages; ++s) chain = chain * StageMatrix(record, record.stage[s], Omega, Fq);
    if (record.Rsource[1] == 0) throw Failure();
    Transmission(chain, record.Rsource[1], record.Rload[1], point);
    Delay(PrevFreq, PrevAngle, Freq, point);
    Input(chain, record.Rload[1], record.Rstandard, point);
  } catch (const Failure&) {
    // What was not written keeps its old value.
  }
}

void Sweep(const DesignRecord& record, f32 Fq, Responses& r) {
  const int last = static_cast<int>(std::nearbyint(record.NrIntervals));
  const bool linear = record.SweepMode == 1;
  const f64 intervals = record.NrIntervals;
  const f64 start = linear ? static_cast<f64>(record.Fstart) : std::log(static_cast<f64>(record.Fstart));
  const f64 stop = linear ? static_cast<f64>(record.Fstop) : std::log(static_cast<f64>(record.Fstop));
  Point point;
  f32 PrevFreq = 0;
  f32 PrevAngle = 0;
  f64 phase = 0;
  for (int i = 0; i <= last; ++i) {
    const f64 at = (stop - start) * (i / intervals) + start;
    r.RespFreq[i] = static_cast<f32>(linear ? at : std::exp(at));
    AnalyzePoint(record, Fq, PrevFreq, PrevAngle, r.RespFreq[i], point);
    phase += point.PhaseStep;
    r.RespTrans[i] = static_cast<f32>(point.TransDB);
    r.RespAngle[i] = static_cast<f32>(point.Angle);
    r.RespDelay[i] = point.Delay;
    r.RespPhase[i] = static_cast<f32>(phase);
    r.RespReturn[i] = static_cast<f32>(point.ReturnDB);
    r.RespVSWR[i] = static_cast<f32>(point.VSWR);
    r.RespZin[i] = static_cast<f32>(point.ZinMag);
    r.RespZinAngle[i] = static_cast<f32>(-point.ZinAngleRaw);
    PrevFreq = r.RespFreq[i];
    PrevAngle = r.RespAngle[i];
  }
}

}  // namespace quilm::plain
