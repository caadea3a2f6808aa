#pragma once

/// Initialises COM on the calling thread until the scope ends, in a single-threaded
/// apartment as the shell's windows require. A thread that is already in another
/// apartment stays in it.
class CComApartment
{
  public:
    CComApartment();
    ~CComApartment();
    CComApartment(const CComApartment&) = delete;
    CComApartment& operator=(const CComApartment&) = delete;

  private:
    bool m_entered;
};
