#pragma once

#include <QString>

#include <functional>

namespace designer {

class TDesignInspector;
class TSession;

/// Values of types that have names for some of their numbers, as colours, cursors and short cuts, show and are picked
/// by name, and can be typed either way.
void AddNamedNumbers(TDesignInspector& inspector);
/// References show and are picked by the name of the component that they lead to.
void AddReferences(TDesignInspector& inspector, TSession& session);
/// Events show, and get by typing or picking, the names of their handlers.
void AddHandlerNames(TDesignInspector& inspector, TSession& session);
/// Texts of several lines have a button that opens a window for them.
void AddLinesButton(TDesignInspector& inspector);
/// Collections have a button that opens a window for their items.
void AddItemsButton(TDesignInspector& inspector);
/// Pictures have a button that loads a file; `ask` answers its name, empty for none.
void AddPictureButton(TDesignInspector& inspector, const std::function<QString()>& ask);

}  // namespace designer
