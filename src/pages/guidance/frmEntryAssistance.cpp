#include "pages/guidance/frmEntryAssistance.h"

#include <string>
#include <string_view>

#include "shell/Session.h"

namespace quilm {

namespace {

// As they have always stood, the doubled "interval" included.
constexpr std::string_view paragraphs[] = {
    "Frequency entries are always entered in Hz. For example, a frequency of 1.2 MHz may be entered as 1200k or 1.2e6 "
    "or "
    "1.2M (the easiest).  Use 'M' for Megahertz, 'k' for kilohertz or 'g' for gigahertz; the letter 'H' is not needed.",
    "Capacitor values are always entered in farads. For example, a capacitance of 47 picofarads may be entered as "
    "47e-12 "
    "or 47p (the easiest). Use 'p' for picofarads, 'n' for nanofarads or 'u' for microfarads.  The letter 'F' is not "
    "needed.",
    "Inductor values are always entered in henries. For example, an inductor of 22 microhenries may be entered as "
    "22e-6 "
    "or 22u (the easiest). Use 'n' for nanohenries, 'u' for microhenries or 'm' for millihenries. The letter 'H' is "
    "not "
    "needed.",
    "Resistor values are always entered in ohms. For example, a resistor of 2200 ohms may be entered as 2200, or 2.2k. "
    "Use 'k' for kilo-ohms.",
    "Time entries are always entered in seconds. For example a time value of 1200 nanoseconds may be entered as "
    "1200e-9, "
    "or 1.2e-6, or 1.2u (the easiest). Use 'n' for nanoseconds, 'p' for picoseconds, 'u' for microseconds or 'm' for "
    "milliseconds.",
    "The letters used in the extensions as outlined above can be upper-case or lower-case EXCEPT for the letter 'm' "
    "which "
    "is case-sensitive. Use 'm' for 'milli-' entries and 'M' for 'mega-' entries.",
    "The entries are 'echoed back' using what the program considers the simplest form. The entry may be 3500k (or "
    "3500000) but when it next appears in a text box it will probably have been changed to, for example, '3.5M' which "
    "is "
    "shorter.",
    "Use a linear sweep for narrow-band filters, those of an octave or less in width. Use a log sweep for wideband "
    "filters, those with a width of greater than two or three octaves. Set the number of analysis steps to a high "
    "number "
    "(2000) for good resolution on the plots. The reason for allowing a smaller number is to accommodate a tabulated "
    "response output where only a few frequencies may be needed.",
    "When using a log sweep use starting and stopping frequencies with decimal multiples of 1, 2 and 5.   For example "
    "start an analysis at 50 Hz and stop it at 10kHz.   For linear sweeps set the number of X-axis intervals to a "
    "figure "
    "that yields 'nice' labels on the plot bottom, along with appropriate starting and stopping frequencies.",
    "Use a multiple of six for the number of Y-axis intervals, along with decimal multiples of 3, 6, 12, 30, 60 and so "
    "on "
    "for the various vertical scales. For example use six vertical interval intervals and an amplitude range of 60 dB.",
    "The top of the transmission (and return) scale is always zero. The delay scale bottom is always zero. The "
    "impedance "
    "scale bottom is always zero. The VSWR scale bottom is always unity. None of these items can be changed.",
};

std::string Joined() {
  std::string text;
  for (const std::string_view paragraph : paragraphs) {
    if (!text.empty()) text += "\r\n\r\n";
    text += paragraph;
  }
  return text;
}

}  // namespace

frmEntryAssistance::frmEntryAssistance(Session& session) : Page(session, PageId::EntryAssistance, "Entry assistance") {
  lblAssistance.caption = Joined();
  cmdExit.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = cancelButton = &cmdExit;
}

Layout frmEntryAssistance::MakeLayout() { return Column({Fill(Put(lblAssistance)), Row({Space(), Put(cmdExit)})}); }

}  // namespace quilm
