#ifndef HOST_EQUANTMODE_H
#define HOST_EQUANTMODE_H

//! How the amount of a `Quantity` came about.
enum EQuantMode : int {
    quantModeNone = 0,         //!< no amount was given
    quantModeRecalculated = 7, //!< the program computed the new amount of a position
};

#endif // HOST_EQUANTMODE_H
