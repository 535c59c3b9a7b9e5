#ifndef FAMILIES_H
#define FAMILIES_H

class Stage;

// The scripts of the tour, one for each family of classes.
namespace Families {

void frame(Stage &stage);
void messageBox(Stage &stage);
void inputDialogs(Stage &stage);
void fileDialog(Stage &stage);
void fileMenu(Stage &stage);
void fileManager(Stage &stage);
void progress(Stage &stage);
void smallWidgets(Stage &stage);

} // namespace Families

#endif // FAMILIES_H
