#include "help_boxes.h"

#include <QDialogButtonBox>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace mainwin {
namespace {

const char* const kFrequencyHelp = R"(
<h3>Showing S-parameters over frequency</h3>
<p><b>Loading.</b> Use <i>File - Load *.SPM/*.S2P</i> (F3) or the first tool button to read a
two-port file. Up to four files can be shown together; each one is listed under
<i>S-Parameter Files</i> with a check mark. You can also name up to four files on the command
line, drop a file from the file manager onto this page, or pick one of the recently used files,
which the <i>File</i> menu lists just below <i>Load</i>.</p>
<p><b>Files.</b> Line 1 of a file is its title. Every further line holds the frequency in Hz
(a prefix such as 1.5G or 900M is allowed) followed by magnitude and angle in degrees of S11,
S21, S12 and S22.</p>
<p><b>Touchstone files.</b> Files are read in the plain format above until you check
<i>Options - Read Touchstone Files</i>. Read plainly, a Touchstone file (.s2p) is taken line by
line as that format: its option line is not applied (frequencies count in Hz, values as
magnitude and angle, whatever unit and format it names), and comment or option lines after the
first line put the data out of step; a message says so when a file looks like a Touchstone file.
With <i>Read Touchstone Files</i> checked (it is remembered), every file loaded from then on is
read as a two-port Touchstone file: its frequency unit, its format (MA, DB or RI), Y, Z, H and G
parameters and its reference impedance are applied, comments may stand anywhere, and a noise
block is left out.</p>
<p><b>Choosing what is shown.</b> Remove the check mark of a file to leave it out of the
diagrams. <i>Remove Last</i> forgets the file loaded last.</p>
<p><b>Number of Frequencies.</b> With exactly one file checked, the arrows next to the field
choose how many of its frequency points the diagrams show; they wrap around at both ends.</p>
<p><b>Z0</b> is the reference impedance in ohms, 0.001 to 1M.</p>
<p><b>Diagrams.</b> S11 and S22 open the reflection diagram (Smith chart), S21 and S12 the
transmission diagram; the combined buttons need exactly one checked file. The last three
buttons open the gain, the stability and the impedance diagrams.</p>
)";

const char* const kSeriesHelp = R"(
<h3>Figures of merit of a bias series</h3>
<p><b>Collecting the series.</b> Show the page <i>Input: Extracted F.O.M. vs Parameter</i> and
drag the .s2p files of one transistor, one file per operating point, from the file manager onto
the window. Up to 40 files are kept, in the order they arrive.</p>
<p><b>Bias current.</b> Each file names its current in a comment line such as
<tt>! Ic=1.5m</tt> or <tt>! Id = 2 m</tt>. It is read when <i>Current Ic</i> is chosen as the
x-axis.</p>
<p><b>Analysis.</b> fT, fmax, MAG/MSG and k are taken at the analysis frequency fo (the last
point at or below fo); f(k&gt;1) is the frequency above which the device stays unconditionally
stable. <i>Insert Lgnd</i> adds the ground inductance to the common lead first; <i>fmax with
U</i> extrapolates Mason's U instead of MAG/MSG. The frequency multiplier must match the files'
frequency unit. With <i>Options - Read Touchstone Files</i> checked, the files are read as
Touchstone files and the multiplier <i>automatical</i> takes each file's unit from its option
line.</p>
<p><b>Output.</b> The three graph pages plot the results against current, current density
(<i>Show vs j</i>, with the area in square micrometres) or file number; the table page lists
them and can be exported as ASCII text. Points joined by lines look right only when the files
are sorted: click a file in the list to move it up by one position.</p>
)";

void FillHelpBox(QDialog& box, const QString& caption, const char* html) {
  box.setWindowTitle(caption);
  auto* text = new QTextBrowser(&box);
  text->setObjectName("HelpText");
  text->setHtml(QString::fromUtf8(html));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, &box);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
  auto* layout = new QVBoxLayout(&box);
  layout->addWidget(text);
  layout->addWidget(buttons);
  box.resize(520, 420);
}

}  // namespace

THilfeBox::THilfeBox(QWidget* parent) : QDialog(parent) {
  setObjectName("HilfeBox");
  FillHelpBox(*this, tr("Help"), kFrequencyHelp);
}

THilfeFOMBox::THilfeFOMBox(QWidget* parent) : QDialog(parent) {
  setObjectName("HilfeFOMBox");
  FillHelpBox(*this, tr("Help for S-Parameter Analysis"), kSeriesHelp);
}

}  // namespace mainwin
