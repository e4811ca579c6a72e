#include <QtCore/QObject>

void definedNowhere();

class UnresolvedSymbol : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "PackagingControl")

public:
    UnresolvedSymbol() { definedNowhere(); }
};

#include "UnresolvedSymbol.moc"
